#include "orvane/app/base/SearchFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace orvane {

QStringList pluginFolders()
{
    QStringList folders = qEnvironmentVariable("ORVANE_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
    folders
        += QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/orvane/plugins");
    folders += QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib"));
    return folders;
}

QStringList profileFolders()
{
    return {QStringLiteral(":/orvane/profiles"),
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvane/profiles")};
}

} // namespace orvane
