#include "orvane/extender/detail/PluginLibrary.h"

#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/detail/Guarded.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <cstring>

#include <elf.h>

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

// The system maps the sizes in a library's header without comparing them with the size of the file. Reading beyond the
// end of a truncated file kills the process.
bool isCutOff(const QString& fileName)
{
    QFile file(fileName);
    Elf64_Ehdr header;
    if (!file.open(QIODevice::ReadOnly) || file.read(reinterpret_cast<char*>(&header), sizeof header) != sizeof header)
        return false;
    const bool isLibrary = std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == ELFCLASS64
        && header.e_phentsize == sizeof(Elf64_Phdr);
    if (!isLibrary)
        return false;
    const auto size = static_cast<quint64>(file.size());
    if (!file.seek(static_cast<qint64>(header.e_phoff)))
        return true;
    for (int i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment;
        if (file.read(reinterpret_cast<char*>(&segment), sizeof segment) != sizeof segment)
            return true;
        if (segment.p_type == PT_LOAD && (segment.p_offset > size || segment.p_filesz > size - segment.p_offset))
            return true;
    }
    return false;
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

std::optional<QString> open(const QFileInfo& file, PluginLibrary& result)
{
    if (auto problem = whyNotReadable(file))
        return problem;
    result.fileName = file.canonicalFilePath();

    if (isCutOff(result.fileName))
        return QStringLiteral("it can't be loaded as a plug-in: the file is cut off");
    QLibrary library(result.fileName);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load())
        return QStringLiteral("it can't be loaded as a plug-in: %1").arg(reason(library));
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
