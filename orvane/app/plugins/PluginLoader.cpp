#include "orvane/app/plugins/PluginLoader.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/plugins/LoadingMark.h"
#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvPluginsManager.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

const QString offKey = QStringLiteral("plugins/off");
// An extension may throw at each event.
constexpr qsizetype mostWarnings = 20;
const QString suspectsKey = QStringLiteral("plugins/suspects");

// Two names of one file are the same plug-in. One that is gone has no canonical path, but may come back.
QString pathOf(const QString& fileName)
{
    const QFileInfo file(fileName);
    const QString path = file.canonicalFilePath();
    return path.isEmpty() ? file.absoluteFilePath() : path;
}

} // namespace

PluginLoader::PluginLoader(OrvPluginsManager& manager, AppSettings& settings, QString notesFolder)
    : m_manager(manager)
    , m_settings(settings)
    , m_notesFolder(std::move(notesFolder))
{
    connect(&m_manager, &OrvPluginsManager::noticed, this, &PluginLoader::addWarning);
}

QStringList PluginLoader::load(const QStringList& found, const QStringList& askedFor)
{
    std::optional<LoadingMark> mark;
    if (!m_notesFolder.isEmpty()) {
        mark.emplace(m_notesFolder);
        noteUnfinished(mark->unfinished());
    }
    QStringList messages;
    const auto loadOne = [&](const QString& fileName) {
        if (mark)
            mark->begin(pathOf(fileName));
        m_records.push_back(loaded(fileName));
        if (m_records.back().state == State::Failed)
            messages.append(m_records.back().message);
        messages += m_records.back().warnings;
    };
    for (const QString& fileName : found) {
        if (isListed(offKey, fileName) || isListed(suspectsKey, fileName))
            m_records.push_back(leftOut(fileName));
        else
            loadOne(fileName);
    }
    for (const QString& fileName : askedFor)
        loadOne(fileName);
    Q_EMIT changed();
    return messages;
}

void PluginLoader::noteUnfinished(const QStringList& fileNames)
{
    for (const QString& fileName : fileNames)
        setListed(suspectsKey, fileName, true);
    // At once, since this program may be ended as well.
    if (!fileNames.isEmpty())
        m_settings.sync();
}

PluginRecord PluginLoader::leftOut(const QString& fileName) const
{
    return {fileName, isListed(offKey, fileName) ? State::LeftOut : State::Suspect};
}

PluginRecord PluginLoader::loaded(const QString& fileName)
{
    PluginRecord record{fileName, State::Loaded};
    QElapsedTimer timer;
    timer.start();
    const QMetaObject::Connection listening = connect(&m_manager, &OrvPluginsManager::noticed, this,
        [&record](const QString&, const QString& text) { record.warnings.append(text); });
    const std::optional<QString> failure = m_manager.loadPlugin(fileName);
    disconnect(listening);
    constexpr double nanosecondsPerMillisecond = 1e6;
    record.milliseconds = static_cast<double>(timer.nsecsElapsed()) / nanosecondsPerMillisecond;
    if (failure) {
        record.state = State::Failed;
        record.message = *failure;
    } else {
        describe(record);
        addClashes(record);
    }
    return record;
}

void PluginLoader::describe(PluginRecord& record) const
{
    const OrvPlugin* const plugin = m_manager.findPlugin(record.fileName);
    if (plugin == nullptr)
        return;
    record.name = orvane::toQString(plugin->getName());
    record.version = orvane::toQString(plugin->getVersion());
    record.author = orvane::toQString(plugin->getAuthor());
    record.description = orvane::toQString(plugin->getDescription());
    for (const OrvExtension* const extension : plugin->getExtensions())
        record.extensions.append(orvane::toQString(extension->getName()));
}

// A profile names extensions, so it can't tell two of the same name apart.
void PluginLoader::addClashes(PluginRecord& record) const
{
    for (const PluginRecord& other : m_records) {
        if (other.state != State::Loaded || other.fileName == record.fileName)
            continue;
        for (const QString& name : std::as_const(record.extensions)) {
            if (other.extensions.contains(name)) {
                record.warnings.append(tr("%1: its extension \"%2\" has the name of one of %3, so that profiles take "
                                          "both for the same.")
                                           .arg(record.fileName, name, other.fileName));
            }
        }
    }
}

// Of one that is running.
void PluginLoader::addWarning(const QString& fileName, const QString& text)
{
    for (PluginRecord& record : m_records) {
        if (record.fileName != fileName || record.state != State::Loaded || record.warnings.size() >= mostWarnings)
            continue;
        record.warnings.append(text);
        Q_EMIT changed();
    }
}

bool PluginLoader::isSwitchedOff(const QString& fileName) const
{
    return isListed(offKey, fileName);
}

void PluginLoader::setSwitchedOff(const QString& fileName, bool off)
{
    setListed(offKey, fileName, off);
    setListed(suspectsKey, fileName, false);
    // Now the user has decided.
    for (PluginRecord& record : m_records) {
        if (record.state == State::Suspect && record.fileName == fileName)
            record.state = State::LeftOut;
    }
    Q_EMIT changed();
}

QString PluginLoader::loadNow(const QString& fileName)
{
    const auto record = std::ranges::find(m_records, fileName, &PluginRecord::fileName);
    if (record == m_records.end() || record->state == State::Loaded)
        return {};
    setListed(offKey, fileName, false);
    setListed(suspectsKey, fileName, false);
    std::optional<LoadingMark> mark;
    if (!m_notesFolder.isEmpty())
        mark.emplace(m_notesFolder).begin(pathOf(fileName));
    *record = loaded(fileName);
    Q_EMIT changed();
    return record->message;
}

bool PluginLoader::isListed(const QString& key, const QString& fileName) const
{
    return m_settings.value(key).toStringList().contains(pathOf(fileName));
}

void PluginLoader::setListed(const QString& key, const QString& fileName, bool listed)
{
    QStringList files = m_settings.value(key).toStringList();
    const QString path = pathOf(fileName);
    if (files.contains(path) == listed)
        return;
    if (listed)
        files.append(path);
    else
        files.removeAll(path);
    m_settings.setValue(key, files);
}
