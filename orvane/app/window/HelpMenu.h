#pragma once

#include <QObject>

class QMainWindow;
class WindowShell;

/// The Help menu: a list of keys, and the program's version with its running extensions.
class HelpMenu : public QObject {
    Q_OBJECT

public:
    HelpMenu(QMainWindow* window, const WindowShell& shell);

private:
    void showKeys();
    void showAbout();
    [[nodiscard]] QString keysText() const;
    [[nodiscard]] QString aboutText() const;

    QMainWindow* m_window;
    const WindowShell& m_shell;
};
