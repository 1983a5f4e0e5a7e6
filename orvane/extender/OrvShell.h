#pragma once

class OrvExtension;
class QDockWidget;
class QToolBar;

/// The main window, as extensions see it. The application brings the one shell; areas are the values of
/// `Qt::DockWidgetArea` and `Qt::ToolBarArea`. Thread of the user interface only.
class OrvShell {
public:
    /// The shell, or null while there is none.
    [[nodiscard]] static OrvShell* getInstance();

    OrvShell(const OrvShell&) = delete;
    OrvShell& operator=(const OrvShell&) = delete;
    virtual ~OrvShell();

    /// Adds the dock to the main window in that area. The dock stays the extension's.
    virtual void addDockWidget(QDockWidget* dock, int area) = 0;
    /// Takes the dock out of the main window; it has no parent afterwards.
    virtual void removeDockWidget(QDockWidget* dock) = 0;
    /// Records the extension as active in the shell. `value` is reserved and always 1.
    virtual void announceExtension(OrvExtension* extension, int value) = 0;
    /// The counterpart of `announceExtension`.
    virtual void withdrawExtension(OrvExtension* extension) = 0;
    /// Adds the tool bar to the main window in that area. The tool bar stays the extension's.
    virtual void addToolBar(QToolBar* toolBar, int area) = 0;
    /// Takes the tool bar out of the main window; it has no parent afterwards.
    virtual void removeToolBar(QToolBar* toolBar) = 0;

protected:
    /// Makes this object the shell, until it is destroyed. There is one at a time.
    OrvShell();
};
