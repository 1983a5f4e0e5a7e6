#pragma once

#include <QObject>

class QMainWindow;
class QMenu;
class WindowShell;

/// The Help menu: a list of keys, and the program's version with its running extensions.
class HelpMenu : public QObject {
    Q_OBJECT

public:
    HelpMenu(QMainWindow* window, const WindowShell& shell);

    [[nodiscard]] QMenu& menu() const noexcept { return *m_menu; }

private:
    void showKeys();
    void showAbout();
    [[nodiscard]] QString keysText() const;
    [[nodiscard]] QString aboutText() const;

    QMainWindow* m_window;
    QMenu* m_menu;
    const WindowShell& m_shell;
};
