// Tries a plug-in without a display: `orvane-plugin-test FILE` loads it, selects what it edits, uses its controls,
// undoes, saves, reads the scene again with and without it, switches profiles and unloads it. Each step is a line of
// the output; the status is 1 if one failed.

#include "PluginTrial.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

namespace {

/// Writes the scene of a file to the standard output, as this program without a plug-in has it.
int reopen(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        QTextStream(stderr) << fileName << ": " << file.errorString() << '\n';
        return 1;
    }
    QString failure;
    const std::string text = TrialScene::readAgain(file.readAll().toStdString(), failure);
    QTextStream(stderr) << failure;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    return isWritten && failure.isEmpty() ? 0 : 1;
}

// The platform without a display warns of what it can't do, for every window.
void writeMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        QTextStream(stderr) << message << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(&writeMessage);
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--reopen"))
        return reopen(arguments.at(2));
    if (arguments.size() != 2 || arguments.at(1).startsWith(u'-')) {
        QTextStream(stderr) << "usage: orvane-plugin-test FILE\n";
        return 2;
    }
    PluginTrial trial(QFileInfo(arguments.at(1)).absoluteFilePath(), QApplication::applicationFilePath());
    return trial.run() ? 0 : 1;
}
