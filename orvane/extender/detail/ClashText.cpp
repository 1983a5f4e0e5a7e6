#include "orvane/extender/detail/ClashText.h"

#include "meridane/base/types/ClassClash.h"

#include <QFile>
#include <QStringList>

#include <vector>

#include <dlfcn.h>

namespace orvane {
namespace {

// The plug-in that an address is part of, by its file name, or the tool.
QString ownerOf(const void* address)
{
    QString tool = QStringLiteral("the tool itself");
    Dl_info info;
    if (::dladdr(address, &info) == 0 || info.dli_fname == nullptr)
        return tool;
    void* const library = ::dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr)
        return tool;
    const bool isPlugin = ::dlsym(library, "loadPlugin") != nullptr;
    ::dlclose(library);
    return isPlugin ? QFile::decodeName(info.dli_fname) : tool;
}

} // namespace

std::optional<QString> takeClashText()
{
    const std::vector<meridane::ClassClash> clashes = meridane::takeClassClashes();
    QStringList texts;
    for (const meridane::ClassClash& clash : clashes)
        texts.append(
            QStringLiteral("\"%1\" of %2").arg(QString::fromUtf8(clash.name.getString()), ownerOf(clash.holder)));
    texts.removeDuplicates();
    if (texts.isEmpty())
        return std::nullopt;
    constexpr qsizetype mostTexts = 5;
    QString list = texts.mid(0, mostTexts).join(QStringLiteral(", "));
    if (texts.size() > mostTexts)
        list += QStringLiteral(" and %1 more").arg(texts.size() - mostTexts);
    return QStringLiteral("its classes have the names of others: %1").arg(list);
}

} // namespace orvane
