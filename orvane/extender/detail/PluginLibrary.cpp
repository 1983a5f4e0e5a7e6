#include "orvane/extender/detail/PluginLibrary.h"

#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/detail/ClashText.h"
#include "orvane/extender/detail/Guarded.h"
#include "orvane/extender/detail/PluginFile.h"

#include <QFileInfo>
#include <QHash>
#include <QLibrary>

namespace orvane {

namespace {

constexpr const char* makeName = "loadPlugin";
constexpr const char* destroyName = "unloadPlugin";

std::optional<QString> whyNotReadable(const QFileInfo& file)
{
    if (!file.exists())
        return QStringLiteral("there is no such file");
    if (file.isDir())
        return QStringLiteral("it is a folder, not a plug-in");
    if (!file.isFile())
        return QStringLiteral("it isn't a regular file");
    if (!file.isReadable())
        return QStringLiteral("it can't be read");
    return std::nullopt;
}

// A library of another interface would read and write members at wrong places.
std::optional<QString> whyNotFitting(const PluginFile& file)
{
    if (file.isCutOff)
        return QStringLiteral("it can't be loaded as a plug-in: the file is cut off");
    if (file.isForeign)
        return QStringLiteral("it can't be loaded as a plug-in: it was built for another processor");
    if (file.stamps.size() > 1) {
        return QStringLiteral("its parts were built against different plug-in interfaces, %1; build all of it again")
            .arg(file.stamps.join(QStringLiteral(" and ")));
    }
#ifdef ORVANE_PLUGIN_STAMP
    const QString stamp = QStringLiteral(ORVANE_PLUGIN_STAMP);
    if (file.isLibrary && file.stamps.isEmpty()) {
        return QStringLiteral(
            "it can't be loaded as a plug-in: it has no stamp of the plug-in interface; build it with "
            "the header OrvPlugin.h of this version");
    }
    if (file.isLibrary && file.stamps.first() != stamp) {
        return QStringLiteral("it was built against the plug-in interface %1; this is %2; build it again")
            .arg(file.stamps.first(), stamp);
    }
#endif
    return std::nullopt;
}

// The system's reason in one line and without the file name, with which each message begins already.
QString reason(const QLibrary& library)
{
    QString text = library.errorString().simplified();
    const QString start = QStringLiteral("(%1: ").arg(library.fileName());
    if (const qsizetype position = text.indexOf(start); position >= 0 && text.endsWith(u')'))
        text = text.sliced(position + start.size()).chopped(1);
    return text;
}

// Its classes are registered when it is mapped, which happens once.
std::optional<QString> map(QLibrary& library)
{
    static QHash<QString, QString> refused;
    static_cast<void>(takeClashText()); // of others
    if (!library.load())
        return QStringLiteral("it can't be loaded as a plug-in: %1").arg(reason(library));
    if (const auto clash = takeClashText())
        refused.insert(library.fileName(), *clash);
    if (!refused.contains(library.fileName()))
        return std::nullopt;
    return QStringLiteral("it was left out, since %1; rename them, or use only one of the two")
        .arg(refused.value(library.fileName()));
}

std::optional<QString> open(const QFileInfo& file, PluginLibrary& result)
{
    if (auto problem = whyNotReadable(file))
        return problem;
    result.fileName = file.canonicalFilePath();

    if (auto problem = whyNotFitting(readPluginFile(result.fileName)))
        return problem;
    QLibrary library(result.fileName);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (auto problem = map(library))
        return problem;
    const auto make = reinterpret_cast<OrvPlugin* (*)()>(library.resolve(makeName));
    const QFunctionPointer destroy = library.resolve(destroyName);
    if (make == nullptr || destroy == nullptr) {
        return QStringLiteral("it isn't a plug-in: it doesn't export the function \"%1\"")
            .arg(QLatin1String(make == nullptr ? makeName : destroyName));
    }

    if (const auto thrown = guarded([&] { result.plugin = make(); }))
        return QStringLiteral("its \"loadPlugin\" threw an exception: %1").arg(*thrown);
    if (result.plugin == nullptr)
        return QStringLiteral("its \"loadPlugin\" returned no plug-in");
    result.unloadPlugin = destroy;
    const int version = result.plugin->getInterfaceVersion();
    if (version == orvaneInterfaceVersion)
        return std::nullopt;
    QString error = QStringLiteral("it was built against version %1 of the plug-in interface; this is version %2")
                        .arg(version)
                        .arg(orvaneInterfaceVersion);
    if (const auto thrown = guarded(destroy))
        error += QStringLiteral("; its \"unloadPlugin\" threw an exception: %1").arg(*thrown);
    return error;
}

} // namespace

OpenedLibrary openPluginLibrary(const QString& fileName)
{
    OpenedLibrary result;
    if (const auto problem = open(QFileInfo(fileName), result.library))
        result.error = QStringLiteral("%1: %2").arg(fileName, *problem);
    return result;
}

} // namespace orvane
