#pragma once

class OrvExtension;
class QDockWidget;
class QToolBar;

/// The main window, for extensions. The application makes the only shell. Areas are the values of `Qt::DockWidgetArea`
/// and `Qt::ToolBarArea`. Thread of the user interface only.
class OrvShell {
public:
    /// The shell, or null while there is none.
    [[nodiscard]] static OrvShell* getInstance();

    OrvShell(const OrvShell&) = delete;
    OrvShell& operator=(const OrvShell&) = delete;
    virtual ~OrvShell();

    /// Adds the dock to that area of the main window. The extension still owns it.
    virtual void addDockWidget(QDockWidget* dock, int area) = 0;
    /// Removes the dock from the main window; it has no parent afterwards.
    virtual void removeDockWidget(QDockWidget* dock) = 0;
    /// Records the extension as active in the shell. Contract: `value` is reserved and always 1.
    virtual void announceExtension(OrvExtension* extension, int value) = 0;
    /// The counterpart of `announceExtension`.
    virtual void withdrawExtension(OrvExtension* extension) = 0;
    /// Adds the tool bar to that area of the main window. The extension still owns it.
    virtual void addToolBar(QToolBar* toolBar, int area) = 0;
    /// Removes the tool bar from the main window; it has no parent afterwards.
    virtual void removeToolBar(QToolBar* toolBar) = 0;

protected:
    /// Makes this object the shell, until it is destroyed. There is one at a time.
    OrvShell();
};
