#include "orvane/extender/OrvProfile.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/ProfileReader.h"
#include "orvane/extender/VbText.h"

#include <QFile>
#include <QFileInfo>

namespace {

const QString everything = QStringLiteral("*");

// A profile is a page of text. Whatever is larger is some other file, and isn't worth reading.
constexpr qint64 maximumFileSize = 1 << 20;

bool runsByItself(const OrvExtension* extension)
{
    return qobject_cast<const OrvEditor*>(extension) == nullptr;
}

void note(QStringList& names, const QString& name)
{
    if (!names.contains(name))
        names.append(name);
}

} // namespace

OrvProfile::OrvProfile(const QString& name, QList<Entry> entries)
    : m_name(name)
    , m_entries(std::move(entries))
{
}

OrvProfile::~OrvProfile() = default;

VbString OrvProfile::getName() const
{
    return orvane::toVbString(m_name);
}

const OrvProfile::Entry* OrvProfile::findEntry(const OrvExtension& extension) const
{
    const QString name = orvane::toQString(extension.getName());
    const Entry* forOthers = nullptr;
    for (const Entry& entry : m_entries) {
        if (entry.extension == name)
            return &entry;
        if (entry.extension == everything)
            forOthers = &entry;
    }
    return forOthers;
}

QStringList OrvProfile::resolve(const QList<OrvExtension*>& extensions)
{
    m_settings.clear();
    std::vector<std::pair<OrvExtension*, const Entry*>> running;
    for (OrvExtension* const extension : extensions) {
        const Entry* const entry = runsByItself(extension) ? findEntry(*extension) : nullptr;
        if (entry == nullptr || !entry->runs)
            continue;
        running.emplace_back(extension, entry);
        m_settings.emplace(extension, std::make_unique<OrvProfileSetting>());
    }

    QStringList names;
    QStringList namesOfRunning;
    for (const OrvExtension* const extension : extensions) {
        names.append(orvane::toQString(extension->getName()));
        if (runsByItself(extension))
            namesOfRunning.append(names.constLast());
    }
    for (const auto& [extension, entry] : running) {
        for (qsizetype i = 0; i < extensions.size(); ++i) {
            OrvExtension* const controlled = extensions.at(i);
            const bool isNamed = entry->controlled.contains(names.at(i)) || entry->controlled.contains(everything);
            if (isNamed && controlled != extension)
                getSetting(extension)->addControlledExtension(controlled, getSetting(controlled));
        }
    }

    QStringList missing;
    for (const Entry& entry : m_entries) {
        if (!entry.runs)
            continue;
        if (entry.extension != everything && !namesOfRunning.contains(entry.extension))
            note(missing, entry.extension);
        for (const QString& name : entry.controlled) {
            if (name != everything && !names.contains(name))
                note(missing, name);
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
    return orvane::ProfileReader(json, fileName).read();
}
