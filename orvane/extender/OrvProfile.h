#pragma once

#include "orvane/extender/OrvProfileEntry.h"
#include "orvane/extender/OrvProfileSetting.h"

#include "meridane/base/values/VbString.h"

#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <unordered_map>

class OrvExtension;

/// A profile says which extensions run by themselves, and which extensions each of them controls.
///
/// It is written by names and becomes effective with `resolve`, when the extensions are there.
class OrvProfile {
public:
    using Entry = OrvProfileEntry;

    OrvProfile(const QString& name, QList<Entry> entries);
    ~OrvProfile();

    [[nodiscard]] VbString getName() const;

    /// Turns the names into settings for these extensions, in place of the present settings, which are destroyed. Only
    /// an extension that is no `OrvEditor` runs by itself, and none controls itself. The result names what the profile
    /// asks for and isn't there, each name once. Only the manager may call this for a profile that it keeps.
    QStringList resolve(const QList<OrvExtension*>& extensions);
    /// The setting of an extension that runs by itself, or null when this profile doesn't run it.
    [[nodiscard]] OrvProfileSetting* getSetting(const OrvExtension* extension) const;

    /// A profile read from JSON, or the message that says what is wrong and where.
    struct ReadResult {
        std::unique_ptr<OrvProfile> profile;
        QString error;
    };
    /// Reads a profile file; the format is told in docs/profiles.md. The message of a failure is one line, "file: what
    /// is wrong" or "file:line:column: what is wrong".
    [[nodiscard]] static ReadResult read(const QString& fileName);
    /// The same from the content; the file name only serves the message.
    [[nodiscard]] static ReadResult fromJson(const QByteArray& json, const QString& fileName);

private:
    [[nodiscard]] static QSet<OrvExtension*> controlledExtensions(
        const Entry& entry, const QMultiHash<QString, OrvExtension*>& extensions);
    [[nodiscard]] QStringList missingNames(const QMultiHash<QString, OrvExtension*>& extensions) const;

    QString m_name;
    const QList<Entry> m_entries;
    QHash<QString, const Entry*> m_entryOf; // by the name of the extension
    std::unordered_map<const OrvExtension*, std::unique_ptr<OrvProfileSetting>> m_settings;
};
