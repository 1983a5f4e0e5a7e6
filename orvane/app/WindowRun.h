#pragma once

#include "orvane/app/CommandLine.h"

#include <QObject>
#include <QStringList>

class MainWindow;
class Session;

/// Brings up the window with what a command line asks for, and either leaves it to the user or takes a picture of it
/// once it has settled.
class WindowRun : public QObject {
    Q_OBJECT

public:
    explicit WindowRun(CommandLine commandLine);

    /// Runs until the window is closed or the picture is written. The result is the exit status; what went wrong is in
    /// the window or, with a picture, on standard error.
    [[nodiscard]] int run();

private:
    void prepare(Session& session, MainWindow& window);
    void showSoon(MainWindow& window);
    void openFile(MainWindow& window);
    void applyTo(Session& session, MainWindow& window);
    void report(MainWindow& window, const QString& message);
    /// Lets queued work run until nothing is left, then writes the picture.
    void takePicture(MainWindow& window);

    CommandLine m_commandLine;
    bool m_failed = false;
};
