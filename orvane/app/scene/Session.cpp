#include "orvane/app/scene/Session.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/plugins/LoadingMark.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/extender/OrvProfile.h"

#include "meridane/base/NxPreferences.h"

#include <QCoreApplication>
#include <QDir>

namespace {

struct SessionTexts {
    Q_DECLARE_TR_FUNCTIONS(Session)
};

const QString profileKey = QStringLiteral("profile");
const QString historyKey = QStringLiteral("history/limit");

} // namespace

Session::Session(AppSettings::Mode settings)
    : Session(settings, AppSettings::defaultFileName())
{
}

Session::Session(AppSettings::Mode settings, const QString& settingsFileName)
    : m_mode(settings)
    , m_settings(settings, settingsFileName)
    , m_pluginLoader(
          m_plugins, m_settings, settings == AppSettings::Mode::File ? LoadingMark::defaultFolder() : QString())
    , m_document(m_services, m_disposal)
{
    SettingsStore& store = SettingsStore::of(m_settings);
    store.follow(historyKey, &m_services,
        [this, &store] { m_services.setHistoryLimit(static_cast<std::size_t>(store.number(historyKey)) << 20U); });
}

Session::~Session()
{
    shutDown();
}

void Session::loadPreferences()
{
    if (m_mode == AppSettings::Mode::File)
        NxPreferences::setFile(orvane::toStdFileName(AppSettings::preferencesFileName()).c_str());
    SettingsStore::of(m_settings).announcePreferences();
}

QStringList Session::loadPlugins(const QStringList& found, const QStringList& askedFor)
{
    return m_pluginLoader.load(found, askedFor);
}

QStringList Session::loadProfiles(const QStringList& folders)
{
    QStringList messages;
    for (const QString& folder : folders) {
        const QDir dir(folder);
        const QStringList names = dir.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
        for (const QString& name : names) {
            OrvProfile::ReadResult result = OrvProfile::read(dir.filePath(name));
            if (result.profile == nullptr)
                messages.append(result.error);
            else if (const std::optional<QString> message = m_plugins.addProfile(std::move(result.profile)))
                messages.append(*message);
        }
    }
    return messages;
}

orvane::Result<> Session::checkProfile(const QString& name) const
{
    if (m_plugins.findProfile(name) != nullptr)
        return {};
    QStringList names;
    for (const OrvProfile* profile : m_plugins.getProfilesList())
        names.append(u'"' + orvane::toQString(profile->getName()) + u'"');
    return orvane::Failure{
        SessionTexts::tr("There is no profile \"%1\", only %2.").arg(name, names.join(QStringLiteral(", ")))};
}

orvane::Result<> Session::activateProfile(const QString& name)
{
    if (m_plugins.getProfilesList().empty())
        return orvane::Failure{SessionTexts::tr("No profile was found, so no extension runs.")};
    OrvProfile* profile = m_plugins.findProfile(name);
    if (profile == nullptr)
        profile = m_plugins.findProfile(m_settings.value(profileKey).toString());
    if (profile == nullptr)
        profile = m_plugins.getProfilesList().front();
    m_plugins.setActiveProfile(profile);
    return name.isEmpty() ? orvane::Result<>() : checkProfile(name);
}

void Session::shutDown()
{
    if (std::exchange(m_down, true))
        return;
    if (const OrvProfile* profile = m_plugins.getActiveProfile())
        m_settings.setValue(profileKey, orvane::toQString(profile->getName()));
    m_settings.sync();
    m_services.selectField(nullptr);
    m_services.selectNode(nullptr);
    m_plugins.setActiveProfile(nullptr);
    // Commands and nodes may be of classes of the plug-ins, so they are deleted before the plug-ins are unloaded.
    m_document.close();
    m_services.clearHistory();
    m_disposal.finish();
    m_plugins.unloadPlugins();
}
