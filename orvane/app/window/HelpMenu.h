#pragma once

#include <QObject>

class AppSettings;
class HelpWindow;
class QAction;
class QMainWindow;
class QMenu;
class WindowShell;

/// The Help menu: the pages of the documentation, the page of keys, and the program's version with its running
/// extensions.
class HelpMenu : public QObject {
    Q_OBJECT

public:
    /// The action shows the page of keys. Shell and settings live longer.
    HelpMenu(QMainWindow* window, const WindowShell& shell, AppSettings& settings, QAction* keysAction);

    [[nodiscard]] QMenu& menu() const noexcept { return *m_menu; }

private:
    QAction* addAction(const char* name);
    void setTexts();
    void showPage(const QString& page);
    void showAbout();
    [[nodiscard]] QString aboutText() const;

    QMainWindow* m_window;
    QMenu* m_menu;
    const WindowShell& m_shell;
    AppSettings& m_settings;
    QAction* m_contents;
    QAction* m_guide;
    QAction* m_tutorial;
    QAction* m_topic;
    QAction* m_about = nullptr;
    HelpWindow* m_help = nullptr; // made when it is first shown
};
