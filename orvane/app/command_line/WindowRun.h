#pragma once

#include "orvane/app/command_line/CommandLine.h"

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

    /// Runs until the window is closed or the picture is written, and what else is asked for beside a picture. The
    /// result is the exit status; what went wrong is in the window or, with a picture, on standard error.
    [[nodiscard]] int run();

private:
    [[nodiscard]] bool takesPicture() const { return !m_commandLine.screenshotFile.isEmpty(); }
    /// Refuses what can't work whatever becomes of the window.
    [[nodiscard]] orvane::Result<> checkPicture() const;
    void prepare(Session& session, MainWindow& window);
    void showSoon(MainWindow& window);
    /// Opens the file of the command line, and applies to it what is asked for.
    void start(Session& session, MainWindow& window);
    void reportNotOpened(MainWindow& window, const QString& failure);
    void applyTo(Session& session, MainWindow& window);
    void report(MainWindow& window, const QString& message);
    /// Ends a run that takes a picture.
    void finish(Session& session, MainWindow& window);
    /// Prints, exports, and writes the picture, once nothing is left of the queued work.
    [[nodiscard]] orvane::Result<> writeAll(Session& session, MainWindow& window);

    CommandLine m_commandLine;
    bool m_failed = false;
};
