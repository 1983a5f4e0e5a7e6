#include "orvane/app/BatchRun.h"
#include "orvane/app/CommandLine.h"
#include "orvane/app/WindowRun.h"

#include <QApplication>
#include <QTextStream>

#include <csignal>
#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int statusFailed = 1;
constexpr int statusUnusableArguments = 2;

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

int fail(const QString& message, int status)
{
    std::fprintf(stderr, "orvane: %s\n", qPrintable(message));
    return status;
}

// Without them the first files that are opened would take their numbers, and get every message written into them.
void openStandardStreams()
{
    int descriptor = 0;
    do {
        // For reading alone, so that output that goes nowhere is still an error.
        descriptor = ::open("/dev/null", O_RDONLY);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

// The library would take options such as --plugin for its own, so it gets the program's name alone.
template <typename Application>
std::unique_ptr<QCoreApplication> makeApplication(char** argv)
{
    static int count = 1;
    return std::make_unique<Application>(count, argv);
}

// Without a screen the platform has nothing to say that a user could use.
void useNoScreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
        const bool isNoise
            = text.contains(QLatin1String("propagateSizeHints")) || text.startsWith(QLatin1String("QStandardPaths:"));
        if (!isNoise || type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
}

int runBatch(const CommandLine& commandLine, char** argv)
{
    // Plug-ins build widgets as they are loaded; nothing else here needs more than the event loop.
    std::unique_ptr<QCoreApplication> application;
    if (commandLine.listExtensions) {
        useNoScreen();
        application = makeApplication<QApplication>(argv);
    } else {
        application = makeApplication<QCoreApplication>(argv);
    }
    QTextStream output(stdout);
    const auto failure = BatchRun(output).run(commandLine);
    output.flush();
    if (failure)
        return fail(*failure, statusFailed);
    // Whoever reads a file of half the output must not take it for the whole.
    if (output.status() != QTextStream::Ok || std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        return fail(QStringLiteral("standard output: %1").arg(qt_error_string()), statusFailed);
    return 0;
}

int runWindow(const CommandLine& commandLine, char** argv)
{
    if (!hasDisplay()) {
        if (commandLine.screenshotFile.isEmpty())
            return fail(QStringLiteral("There is no display to open a window on; --screenshot works without one."),
                statusFailed);
        useNoScreen();
    }
    const auto application = makeApplication<QApplication>(argv);
    return WindowRun(commandLine).run();
}

} // namespace

int main(int argc, char* argv[])
{
    openStandardStreams();
    // A file that outgrows the user's limit is a write error with a message, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    QCoreApplication::setApplicationName(QStringLiteral("orvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);

    const auto [commandLine, error] = CommandLine::parse(arguments);
    if (!error.isEmpty())
        return fail(error, statusUnusableArguments);
    if (commandLine.help || commandLine.version) {
        QTextStream(stdout) << (commandLine.help ? CommandLine::helpText()
                                                 : QStringLiteral("orvane " ORVANE_VERSION "\n"));
        return 0;
    }
    return commandLine.isBatch() ? runBatch(commandLine, argv) : runWindow(commandLine, argv);
}
