#pragma once

#include "orvane/app/command_line/CommandLine.h"

#include <QObject>
#include <QStringList>

class MainWindow;
class Session;

/// Opens the window with the file, plug-ins and changes of a command line. Then the user works in it, or a picture of
/// it is written and the program ends.
class WindowRun : public QObject {
    Q_OBJECT

public:
    explicit WindowRun(CommandLine commandLine);

    /// Runs until the window is closed, or until the picture and all other output is written. The result is the exit
    /// status; messages are shown in the window or, with a picture, printed to standard error.
    [[nodiscard]] int run();

private:
    [[nodiscard]] bool takesPicture() const { return !m_commandLine.screenshotFile.isEmpty(); }
    /// Refuses what can't work whatever becomes of the window.
    [[nodiscard]] orvane::Result<> checkPicture() const;
    void prepare(Session& session, MainWindow& window);
    /// Lets other processes find the window, and the window start others.
    void joinOthers(MainWindow& window);
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
    int m_status = 0; // of a run that didn't fail
};
