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

/// A profile lists the extensions that run by themselves, and the extensions that each of them controls.
///
/// It holds names until `resolve` finds the extensions.
class OrvProfile {
public:
    using Entry = OrvProfileEntry; ///< What it says of one extension, or of all others.

    /// Of several entries for an extension the first one counts.
    OrvProfile(const QString& name, QList<Entry> entries);
    ~OrvProfile();

    [[nodiscard]] VbString getName() const; ///< As the user sees it.

    /// Makes settings for these extensions from the names, and destroys the former settings. Only an extension that is
    /// no `OrvEditor` runs by itself, and none controls itself. An extension that another controlled one replaces
    /// (ReplacedEditors.h) isn't controlled; of two that replace each other, the first one is. Returns the names in the
    /// profile that no extension has, each once. For a profile that the manager keeps, only the manager may call it.
    QStringList resolve(const QList<OrvExtension*>& extensions);
    /// The setting of an extension that runs by itself, or null if this profile doesn't run it.
    [[nodiscard]] OrvProfileSetting* getSetting(const OrvExtension* extension) const;

    /// A profile read from JSON, or a message that says what is wrong and where.
    struct ReadResult {
        std::unique_ptr<OrvProfile> profile; ///< Null after a failure.
        QString error; ///< One line that begins with the file name.
    };
    /// Reads a profile file; docs/profiles.md describes the format. The message of a failure is one line, "file: what
    /// is wrong" or "file:line:column: what is wrong".
    [[nodiscard]] static ReadResult read(const QString& fileName);
    /// The same from the content; the file name is used in messages only.
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
