#pragma once

#include "orvane/app/plugins/PluginRecord.h"

#include <QObject>
#include <QStringList>

#include <vector>

class AppSettings;
class OrvPluginsManager;

/// Loads the plug-ins of the tool, except for those that are switched off, and keeps a record of each.
///
/// A plug-in that ends the program while it is loaded is left out from the next start on, until the user decides. Which
/// ones are left out and which ones have ended a program is kept in the settings, by their canonical paths.
class PluginLoader : public QObject {
    Q_OBJECT

public:
    using State = PluginRecord::State;

    /// Both live longer. The folder is that of the notes about plug-ins that are being loaded; with an empty one
    /// nothing is noted.
    PluginLoader(OrvPluginsManager& manager, AppSettings& settings, QString notesFolder);

    /// Loads the found ones that aren't left out, and then all of those that were asked for. Returns a message for each
    /// that failed, and one for each thing that is wrong with one that was loaded.
    QStringList load(const QStringList& found, const QStringList& askedFor = {});

    [[nodiscard]] const std::vector<PluginRecord>& records() const noexcept { return m_records; }

    /// Whether this file is left out from the next start on. The file stays loaded now.
    [[nodiscard]] bool isSwitchedOff(const QString& fileName) const;
    void setSwitchedOff(const QString& fileName, bool off);
    /// Loads one that was left out, now and from the next start on. Returns the message of a failure, or nothing.
    QString loadNow(const QString& fileName);

Q_SIGNALS:
    /// A record or a switch has changed.
    void changed();

private:
    [[nodiscard]] bool isListed(const QString& key, const QString& fileName) const;
    void setListed(const QString& key, const QString& fileName, bool listed);
    void noteUnfinished(const QStringList& fileNames);
    [[nodiscard]] PluginRecord leftOut(const QString& fileName) const;
    [[nodiscard]] PluginRecord loaded(const QString& fileName);
    void describe(PluginRecord& record) const;
    void addClashes(PluginRecord& record) const;
    void addWarning(const QString& fileName, const QString& text);

    OrvPluginsManager& m_manager;
    AppSettings& m_settings;
    QString m_notesFolder;
    std::vector<PluginRecord> m_records;
};
