#include "orvane/app/access/Access.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/command_line/BatchRun.h"
#include "orvane/app/command_line/CommandLine.h"
#include "orvane/app/command_line/HandOver.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/command_line/WindowRun.h"
#include "orvane/app/log/QtNoise.h"
#include "orvane/app/look/ReadablePalette.h"
#include "orvane/app/plugins/GuardedApplication.h"
#include "orvane/app/settings/SettingsFile.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <new>
#include <utility>

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

namespace {

constexpr int statusFailed = 1;
constexpr int statusUnusableArguments = 2;

bool isSet(const char* name)
{
    return !qEnvironmentVariableIsEmpty(name);
}

bool hasDisplay()
{
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

int exceptionStatus = statusFailed;

int fail(const QString& message, int status)
{
    orvane::printError(message);
    return status;
}

// Ends the program after an exception that nothing catches, such as one for want of memory inside the event loop.
[[noreturn]] void endByException()
{
    const char* reason = "an exception of unknown kind";
    try {
        if (const std::exception_ptr exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::bad_alloc&) {
        reason = "out of memory";
    } catch (const std::exception& exception) {
        reason = exception.what();
    } catch (...) {
    }
    // There may be no memory for more than this.
    std::fprintf(stderr, "orvane: %s\n", reason);
    std::_Exit(exceptionStatus);
}

// If they are closed, the first files that are opened get their descriptors, and every message is written into them.
void openStandardStreams()
{
    int descriptor = 0;
    do {
        // For reading alone, so that output that goes nowhere is still an error.
        descriptor = ::open("/dev/null", O_RDONLY);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

// Some services start programs without it, but everything that is kept for the user has its place below it.
void provideHome()
{
    if (isSet("HOME"))
        return;
    std::array<char, 4096> texts{};
    passwd user{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &user, texts.data(), texts.size(), &found) == 0 && found != nullptr)
        qputenv("HOME", found->pw_dir);
}

// The library would take options such as --plugin for its own, so it gets the program's name alone.
template <typename Application>
std::unique_ptr<QCoreApplication> makeApplication(char** argv)
{
    static int count = 1;
    return std::make_unique<Application>(count, argv);
}

QtMessageHandler qtMessageHandler = nullptr; // Qt's own

void passOnUnlessNoise(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!orvane::isQtNoise(text) || type == QtFatalMsg)
        qtMessageHandler(type, context, text);
}

// A picture or a list must not depend on the display.
std::unique_ptr<QCoreApplication> makeApplicationWithoutScreen(char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qtMessageHandler = qInstallMessageHandler(&passOnUnlessNoise);
    return makeApplication<GuardedApplication>(argv);
}

// Where the display can't be reached, the library says so in many lines and aborts. Here it is one line.
std::unique_ptr<QCoreApplication> makeApplicationOnScreen(char** argv)
{
    static QStringList problems;
    qtMessageHandler
        = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
              if (!orvane::isQtNoise(text))
                  problems.append(text.trimmed());
              if (type != QtFatalMsg)
                  return;
              orvane::printError(QStringLiteral("No window can be opened: %1. --screenshot works without a display.")
                                     .arg(problems.value(0, text.trimmed())));
              std::_Exit(statusFailed);
          });
    auto application = makeApplication<GuardedApplication>(argv);
    new ReadablePalette(application.get());
    orvane::installAccess();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/orvane/icons/orvane.svg")));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvane"));
    qInstallMessageHandler(&passOnUnlessNoise);
    for (const QString& problem : std::as_const(problems))
        orvane::printError(problem);
    return application;
}

int runBatch(const CommandLine& commandLine, char** argv)
{
    // Plug-ins build widgets as they are loaded; nothing else here needs more than the event loop.
    const auto application
        = commandLine.needsExtensions() ? makeApplicationWithoutScreen(argv) : makeApplication<QCoreApplication>(argv);
    orvane::StandardOutput output;
    BatchRun batch(commandLine, output.stream());
    const auto result = batch.run();
    const auto written = output.finish();
    if (!result)
        return fail(result.error(), commandLine.failureStatus());
    // A script must not take half of the output for the whole.
    return written ? batch.status() : fail(written.error(), commandLine.failureStatus());
}

int runWindow(const CommandLine& commandLine, char** argv)
{
    const bool takesPicture = !commandLine.screenshotFile.isEmpty();
    if (!takesPicture && !hasDisplay())
        return fail(
            QStringLiteral("There is no display to open a window on; --screenshot works without one."), statusFailed);
    if (const auto status = orvane::handOver(commandLine, argv))
        return *status;
    const auto application = takesPicture ? makeApplicationWithoutScreen(argv) : makeApplicationOnScreen(argv);
    return WindowRun(commandLine).run();
}

int print(const QString& text)
{
    orvane::StandardOutput output;
    output.stream() << text;
    const auto written = output.finish();
    return written ? 0 : fail(written.error(), statusFailed);
}

int resetSettings(const QString& fileName)
{
    const auto kept = orvane::putSettingsAway(fileName);
    if (!kept)
        return fail(kept.error(), statusFailed);
    return print(kept.value().isEmpty()
            ? QStringLiteral("There are no settings yet: %1 doesn't exist.\n").arg(fileName)
            : QStringLiteral("The settings are reset. The former ones are in %1.\n").arg(kept.value()));
}

int run(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += orvane::fromStdFileName(argv[i]);
    const auto parsed = CommandLine::parse(arguments);
    // Of a check, the usual statuses mean that there are problems in the scene.
    const bool isCheck = arguments.contains(QStringLiteral("--check"));
    if (!parsed)
        return fail(parsed.error(), isCheck ? CommandLine::checkFailureStatus : statusUnusableArguments);
    const CommandLine& commandLine = parsed.value();
    exceptionStatus = commandLine.failureStatus();
    if (commandLine.help)
        return print(CommandLine::helpText());
    if (commandLine.version)
        return print(QStringLiteral("orvane " ORVANE_VERSION "\n"));
    if (commandLine.resetSettings)
        return resetSettings(commandLine.settingsFileName());
    // Before any thread reads it: the option counts more than the user's own setting.
    if (commandLine.keepGroups)
        qputenv("ORVANE_KEEP_GROUPS", "1");
    return commandLine.isBatch() ? runBatch(commandLine, argv) : runWindow(commandLine, argv);
}

// Where there is no session bus, Qt's support of screen readers would start one, which outlives the tool.
void startNoBus()
{
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const bool isThere = isSet("DBUS_SESSION_BUS_ADDRESS")
        || (!runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus")));
    if (!isThere)
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

} // namespace

int main(int argc, char* argv[])
{
    std::set_terminate(endByException);
    openStandardStreams();
    provideHome();
    startNoBus();
    // A file that outgrows the user's limit is a write error with a message, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    orvane::useProgramLocale();
    QCoreApplication::setApplicationName(QStringLiteral("orvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
    try {
        return run(argc, argv);
    } catch (...) {
        endByException();
    }
}
