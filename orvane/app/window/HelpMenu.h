#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class WindowShell;

/// The Help menu: the page of keys, and the program's version with its running extensions.
class HelpMenu : public QObject {
    Q_OBJECT

public:
    /// The action shows the page of keys.
    HelpMenu(QMainWindow* window, const WindowShell& shell, QAction* keysAction);

    [[nodiscard]] QMenu& menu() const noexcept { return *m_menu; }

private:
    void showAbout();
    [[nodiscard]] QString aboutText() const;

    QMainWindow* m_window;
    QMenu* m_menu;
    const WindowShell& m_shell;
};
