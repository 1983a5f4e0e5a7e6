#pragma once

#include <QObject>

class AppSettings;
class Inspectors;
class QMainWindow;
class WindowShell;

/// Where the window is on the screen, and where its docks and tool bars are, kept from run to run.
class WindowLayout : public QObject {
    Q_OBJECT

public:
    /// All live longer; the layout is the window's child. Gives the window its size and place at once.
    WindowLayout(QMainWindow* window, const WindowShell& shell, AppSettings& settings);

    /// Makes the window no larger than the screen that it is on.
    void fitScreen();
    /// Puts docks and tool bars where they were, the first time it is called. The extensions of the first profile have
    /// added theirs by then.
    void restore(Inspectors& inspectors);
    void save();

private:
    QMainWindow* m_window;
    const WindowShell& m_shell;
    AppSettings& m_settings;
    bool m_isRestored = false;
};
