#include "orvane/app/command_line/HandOver.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/instance/InstanceClient.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QCoreApplication>

namespace {

struct HandOverTexts {
    Q_DECLARE_TR_FUNCTIONS(HandOver)
};

bool isAskedFor(const CommandLine& commandLine)
{
    if (commandLine.reuse)
        return true;
    if (commandLine.noSettings || commandLine.needsOwnWindow() || commandLine.file.isEmpty())
        return false;
    AppSettings settings(AppSettings::Mode::File);
    return SettingsStore::of(settings).isOn(QStringLiteral("files/oneWindow"));
}

HandedFile handedFile(const CommandLine& commandLine)
{
    const QByteArray wayland = qgetenv("XDG_ACTIVATION_TOKEN");
    return {QCoreApplication::applicationVersion(), orvane::absoluteFileName(commandLine.file), commandLine.select,
        wayland.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : wayland};
}

} // namespace

std::optional<int> orvane::handOver(const CommandLine& commandLine, char** argv)
{
    if (!commandLine.screenshotFile.isEmpty())
        return std::nullopt;
    const auto folder = SocketFolder::open();
    // In most cases there is nobody, and the settings needn't be read twice.
    if (!folder || folder.value().sockets().isEmpty() || !isAskedFor(commandLine)) {
        if (!folder && commandLine.reuse)
            printError(
                HandOverTexts::tr("No running window can be found, so a new one is opened. %1").arg(folder.error()));
        return std::nullopt;
    }
    int count = 1; // the library would take options of the program for its own
    const QCoreApplication application(count, argv);
    const InstanceClient::Result result = InstanceClient(folder.value()).hand(handedFile(commandLine));
    switch (result.outcome) {
    case InstanceClient::Outcome::Taken: {
        StandardOutput output;
        output.stream() << (commandLine.file.isEmpty()
                ? HandOverTexts::tr("The running window was brought to the front.\n")
                : HandOverTexts::tr("%1: handed to the running window.\n").arg(commandLine.file));
        // Whether anyone reads that is beside the point.
        return output.finish() ? 0 : 1;
    }
    case InstanceClient::Outcome::Refused:
        printError(HandOverTexts::tr("%1 A new window is opened.").arg(result.reason));
        break;
    case InstanceClient::Outcome::Nobody:
        break;
    }
    return std::nullopt;
}
