#include "orvane/app/base/SearchFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace orvane {

QStringList pluginFolders(const QString& chosen)
{
    QStringList folders = qEnvironmentVariable("ORVANE_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
    if (!chosen.isEmpty())
        folders += chosen;
    folders
        += QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/orvane/plugins");
    // Beside the program, as it was built, and as it was installed.
    const QDir programs(QCoreApplication::applicationDirPath());
    folders += QDir::cleanPath(programs.filePath(QStringLiteral("../lib")));
    folders += QDir::cleanPath(programs.filePath(QStringLiteral(ORVANE_PLUGIN_FOLDER)));
    return folders;
}

QStringList profileFolders()
{
    return {QStringLiteral(":/orvane/profiles"),
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvane/profiles")};
}

QString stateFolder()
{
    // As for all of these variables, a path that is not absolute is ignored.
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/orvane");
}

} // namespace orvane
