#include "orvane/extender/OrvProfile.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/ReplacedEditors.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/ProfileReader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

const QString everything = QStringLiteral("*");

// A profile is a page of text. A larger file is something else, and is refused before it is read.
constexpr qint64 maximumFileSize = 1 << 20;

bool runsByItself(const OrvExtension* extension)
{
    return qobject_cast<const OrvEditor*>(extension) == nullptr;
}

/// Takes those out that others of the set replace.
void removeReplaced(QSet<OrvExtension*>& controlled, const QList<OrvExtension*>& inOrder)
{
    QHash<const OrvExtension*, const OrvExtension*> replacedBy;
    // An extension that is replaced itself still replaces others, but none that has led to its own replacement.
    const auto mayReplace = [&](const OrvExtension* by, const OrvExtension* other) {
        for (; by != nullptr; by = replacedBy.value(by)) {
            if (by == other)
                return false;
        }
        return true;
    };
    for (const OrvExtension* const extension : inOrder) {
        if (!controlled.contains(const_cast<OrvExtension*>(extension)))
            continue;
        const QStringList names = orvane::replacedEditors(*extension);
        for (OrvExtension* const other : inOrder) {
            if (names.contains(orvane::toQString(other->getName())) && !replacedBy.contains(other)
                && mayReplace(extension, other))
                replacedBy.insert(other, extension);
        }
    }
    controlled.removeIf([&](OrvExtension* extension) { return replacedBy.contains(extension); });
}

} // namespace

OrvProfile::OrvProfile(const QString& name, QList<Entry> entries)
    : m_name(name)
    , m_entries(std::move(entries))
{
    for (const Entry& entry : std::as_const(m_entries)) {
        if (!m_entryOf.contains(entry.extension))
            m_entryOf.insert(entry.extension, &entry);
    }
}

OrvProfile::~OrvProfile() = default;

VbString OrvProfile::getName() const
{
    return orvane::toVbString(m_name);
}

QStringList OrvProfile::resolve(const QList<OrvExtension*>& extensions)
{
    m_settings.clear();
    QMultiHash<QString, OrvExtension*> byName;
    QList<std::pair<OrvExtension*, const Entry*>> running;
    for (OrvExtension* const extension : extensions) {
        const QString name = orvane::toQString(extension->getName());
        byName.insert(name, extension);
        const Entry* const entry
            = runsByItself(extension) ? m_entryOf.value(name, m_entryOf.value(everything)) : nullptr;
        if (entry == nullptr || !entry->runs)
            continue;
        running.append({extension, entry});
        m_settings.emplace(extension, std::make_unique<OrvProfileSetting>());
    }
    // An entry may apply to several extensions, and it may have many names.
    QHash<const Entry*, QSet<OrvExtension*>> controlledBy;
    for (const auto& [extension, entry] : std::as_const(running)) {
        if (!controlledBy.contains(entry)) {
            QSet<OrvExtension*> named = controlledExtensions(*entry, byName);
            removeReplaced(named, extensions);
            controlledBy.insert(entry, named);
        }
        const QSet<OrvExtension*> controlled = controlledBy.value(entry);
        for (OrvExtension* const other : extensions) {
            if (other != extension && controlled.contains(other))
                getSetting(extension)->addControlledExtension(other, getSetting(other));
        }
    }
    return missingNames(byName);
}

QSet<OrvExtension*> OrvProfile::controlledExtensions(
    const Entry& entry, const QMultiHash<QString, OrvExtension*>& extensions)
{
    QSet<OrvExtension*> controlled;
    for (const QString& name : entry.controlled) {
        const auto [begin, end]
            = name == everything ? std::pair(extensions.begin(), extensions.end()) : extensions.equal_range(name);
        controlled.unite(QSet<OrvExtension*>(begin, end));
    }
    return controlled;
}

QStringList OrvProfile::missingNames(const QMultiHash<QString, OrvExtension*>& extensions) const
{
    QStringList missing;
    QSet<QString> noted{everything};
    const auto note = [&](const QString& name) {
        if (!noted.contains(name))
            missing.append(name);
        noted.insert(name);
    };
    for (const Entry& entry : m_entries) {
        if (!entry.runs)
            continue;
        const auto [begin, end] = extensions.equal_range(entry.extension);
        if (std::none_of(begin, end, &runsByItself))
            note(entry.extension);
        for (const QString& name : entry.controlled) {
            if (!extensions.contains(name))
                note(name);
        }
    }
    return missing;
}

OrvProfileSetting* OrvProfile::getSetting(const OrvExtension* extension) const
{
    const auto found = m_settings.find(extension);
    return found != m_settings.end() ? found->second.get() : nullptr;
}

OrvProfile::ReadResult OrvProfile::read(const QString& fileName)
{
    const auto failure = [&](const QString& what) {
        return ReadResult{nullptr, QStringLiteral("%1: %2").arg(fileName, what)};
    };
    if (QFileInfo(fileName).isDir())
        return failure(QStringLiteral("it is a folder, not a profile"));
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    const QByteArray json = file.read(maximumFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        return failure(file.errorString());
    if (json.size() > maximumFileSize)
        return failure(QStringLiteral("it is larger than a profile may be, which is 1 MiB"));
    return fromJson(json, fileName);
}

OrvProfile::ReadResult OrvProfile::fromJson(const QByteArray& json, const QString& fileName)
{
    orvane::ProfileReader reader(json, fileName);
    if (!reader.read())
        return {nullptr, reader.error()};
    return {std::make_unique<OrvProfile>(reader.name(), reader.entries()), {}};
}
