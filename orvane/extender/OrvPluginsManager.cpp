#include "orvane/extender/OrvPluginsManager.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/CallExtensions.h"
#include "orvane/extender/detail/Guarded.h"
#include "orvane/extender/detail/PluginLibrary.h"
#include "orvane/extender/detail/ThrowSite.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <ranges>
#include <utility>

namespace {

OrvPluginsManager* theManager = nullptr;

// For calls after whose failure the work goes on as usual.
template <typename Call>
void callAndReport(const QString& what, const Call& call)
{
    if (const auto thrown = orvane::guarded(call)) {
        const QString text = QStringLiteral("%1 threw an exception: %2").arg(what, *thrown);
        NxDebugError::post(NxDebugError::Error, orvane::toVbString(text));
    }
}

QString titled(const OrvExtension& extension, const char* operation)
{
    return QStringLiteral("\"%1\" of the extension \"%2\"")
        .arg(QLatin1String(operation), orvane::toQString(extension.getName()));
}

void unload(OrvPlugin& plugin, const QString& title)
{
    // A call that throws skips one extension, and the next call continues behind it.
    for (qsizetype calls = plugin.getExtensions().size() + 1; calls > 0; --calls) {
        const auto thrown = orvane::guarded([&] { plugin.unload(); });
        if (!thrown)
            return;
        callAndReport(title, [&] { throw std::runtime_error(thrown->toStdString()); });
    }
}

} // namespace

OrvPluginsManager* OrvPluginsManager::getInstance()
{
    return theManager;
}

OrvPluginsManager::OrvPluginsManager()
{
    Q_ASSERT_X(theManager == nullptr, "OrvPluginsManager", "there is one manager at a time");
    theManager = this;
    orvane::setExceptionHandler([this](const QString& during) { return handleException(during); });
}

OrvPluginsManager::~OrvPluginsManager()
{
    unloadPlugins();
    orvane::setExceptionHandler({});
    theManager = nullptr;
}

QStringList OrvPluginsManager::findPlugins(const QStringList& folders)
{
    QStringList files;
    QStringList names;
    for (const QString& folder : folders) {
        const QStringList pattern{QStringLiteral("libkal_orvane_extender_*.so")};
        const QFileInfoList found = QDir(folder).entryInfoList(pattern, QDir::Files, QDir::Name);
        for (const QFileInfo& file : found) {
            if (names.contains(file.fileName()))
                continue;
            names.append(file.fileName());
            files.append(file.filePath());
        }
    }
    return files;
}

std::optional<QString> OrvPluginsManager::loadPlugin(const QString& fileName)
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    if (findPlugin(fileName) != nullptr)
        return QStringLiteral("%1: it is loaded already").arg(fileName);
    const orvane::OpenedLibrary opened = orvane::openPluginLibrary(fileName);
    if (opened.error)
        return opened.error;
    return takeIn({opened.library.plugin, fileName, path, opened.library.unloadPlugin});
}

std::optional<QString> OrvPluginsManager::addPlugin(OrvPlugin* plugin)
{
    return takeIn({plugin, orvane::toQString(plugin->getName()), {}, nullptr});
}

std::optional<QString> OrvPluginsManager::takeIn(const LoadedPlugin& plugin)
{
    if (const auto thrown = orvane::guarded([&] { plugin.plugin->load(); })) {
        unload(*plugin.plugin, plugin.title);
        if (plugin.destroy != nullptr)
            callAndReport(plugin.title, plugin.destroy);
        return QStringLiteral("%1: it can't be loaded, for it threw an exception: %2").arg(plugin.title, *thrown);
    }
    m_plugins.push_back(plugin);
    if (m_activeProfile != nullptr)
        setActiveProfile(m_activeProfile);
    return std::nullopt;
}

void OrvPluginsManager::unloadPlugins()
{
    Q_ASSERT_X(!m_isChanging && !m_isUnloading, "unloadPlugins", "not to be called by an extension");
    const QScopedValueRollback isUnloading(m_isUnloading, true);
    m_wishedProfile.reset();
    if (m_activeProfile != nullptr)
        changeProfile(nullptr);
    for (const auto& profile : m_profiles)
        profile->resolve({});
    while (!m_plugins.empty()) {
        const LoadedPlugin plugin = m_plugins.back();
        m_plugins.pop_back();
        unload(*plugin.plugin, plugin.title);
        if (plugin.destroy != nullptr)
            callAndReport(plugin.title, plugin.destroy);
    }
}

const OrvPlugin* OrvPluginsManager::findPlugin(const QString& fileName) const
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    const auto isSameFile = [&](const LoadedPlugin& plugin) { return plugin.fileName == path; };
    const auto found = path.isEmpty() ? m_plugins.end() : std::ranges::find_if(m_plugins, isSameFile);
    return found != m_plugins.end() ? found->plugin : nullptr;
}

QList<OrvExtension*> OrvPluginsManager::getExtensions() const
{
    QList<OrvExtension*> extensions;
    for (const LoadedPlugin& plugin : m_plugins)
        extensions += plugin.plugin->getExtensions();
    return extensions;
}

// The extensions of the plug-ins that aren't at rest.
QList<OrvExtension*> OrvPluginsManager::willingExtensions() const
{
    QList<OrvExtension*> extensions;
    for (const LoadedPlugin& plugin : m_plugins) {
        if (!plugin.isResting)
            extensions += plugin.plugin->getExtensions();
    }
    return extensions;
}

// The innermost plug-in that took part in the latest exception.
OrvPluginsManager::LoadedPlugin* OrvPluginsManager::findThrower()
{
    for (const QString& library : orvane::throwingLibraries()) {
        const QString path = QFileInfo(library).canonicalFilePath();
        const auto found
            = std::ranges::find_if(m_plugins, [&](const LoadedPlugin& plugin) { return plugin.fileName == path; });
        if (found != m_plugins.end() && !path.isEmpty())
            return &*found;
    }
    return nullptr;
}

bool OrvPluginsManager::handleException(const QString& during)
{
    LoadedPlugin* const thrower = findThrower();
    if (thrower == nullptr)
        return false;
    constexpr qsizetype manyExtensions = 8;
    QString text = QStringLiteral("%1: it threw an exception during %2: %3")
                       .arg(thrower->title, during, orvane::exceptionText());
    if (!thrower->isResting && thrower->plugin->getExtensions().size() <= manyExtensions) {
        text += QStringLiteral("; its extensions don't run any more, until the program is started again");
        thrower->isResting = true;
        const auto applyAgain = [this] {
            if (m_activeProfile != nullptr)
                setActiveProfile(m_activeProfile);
        };
        QMetaObject::invokeMethod(this, applyAgain, Qt::QueuedConnection);
    }
    NxDebugError::post(NxDebugError::Error, orvane::toVbString(text));
    return true;
}

std::optional<QString> OrvPluginsManager::addProfile(std::unique_ptr<OrvProfile> profile)
{
    const QString name = orvane::toQString(profile->getName());
    if (name.trimmed().isEmpty())
        return QStringLiteral("a profile must have a name");
    if (findProfile(name) != nullptr)
        return QStringLiteral("there is a profile \"%1\" already").arg(name);
    m_profilesList.push_back(profile.get());
    m_profiles.push_back(std::move(profile));
    return std::nullopt;
}

OrvProfile* OrvPluginsManager::findProfile(const QString& name) const
{
    const auto hasName = [&](const OrvProfile* profile) { return orvane::toQString(profile->getName()) == name; };
    const auto found = std::ranges::find_if(m_profilesList, hasName);
    return found != m_profilesList.end() ? *found : nullptr;
}

void OrvPluginsManager::setActiveProfile(OrvProfile* profile)
{
    if (profile != nullptr && std::ranges::find(m_profilesList, profile) == m_profilesList.end())
        return;
    // No extension may be activated again, since they are unloaded one after the other.
    if (m_isUnloading)
        return;
    if (m_isChanging)
        changeProfileLater(profile);
    else
        changeProfile(profile);
}

void OrvPluginsManager::changeProfile(OrvProfile* profile)
{
    const QScopedValueRollback isChanging(m_isChanging, true);
    deactivateExtensions();
    m_activeProfile = profile;
    if (profile != nullptr)
        reportMissing(*profile, profile->resolve(willingExtensions()));
    shareSettings();
    activateExtensions();
    if (OrvServices* const services = OrvServices::getInstance(); services != nullptr && profile != nullptr)
        services->announceSelection();
}

// Once for a profile and what it misses, since a profile is applied again for each plug-in that is loaded later.
void OrvPluginsManager::reportMissing(const OrvProfile& profile, const QStringList& names)
{
    const std::pair report(&profile, names);
    // Without any plug-in, or with one at rest, the user knows.
    if (names.isEmpty() || m_reportedMissing == report || m_plugins.empty()
        || std::ranges::any_of(m_plugins, &LoadedPlugin::isResting))
        return;
    m_reportedMissing = report;
    constexpr qsizetype mostNames = 5;
    QString list = u'"' + names.mid(0, mostNames).join(QStringLiteral("\", \"")) + u'"';
    if (names.size() > mostNames)
        list += QStringLiteral(" and %1 more").arg(names.size() - mostNames);
    const QString text
        = QStringLiteral("The profile \"%1\" names extensions that no plug-in has: %2. Load their plug-in, "
                         "or take them out of the profile.")
              .arg(orvane::toQString(profile.getName()), list);
    NxDebugError::post(NxDebugError::Warning, orvane::toVbString(text));
}

void OrvPluginsManager::deactivateExtensions()
{
    while (!m_running.isEmpty()) {
        OrvExtension& extension = *m_running.takeLast();
        callAndReport(titled(extension, "deactivate"), [&] { extension.deactivate(); });
    }
}

/// Gives each extension its setting in the active profile.
void OrvPluginsManager::shareSettings() const
{
    for (OrvExtension* const extension : getExtensions())
        extension->m_profileSetting = m_activeProfile != nullptr ? m_activeProfile->getSetting(extension) : nullptr;
}

void OrvPluginsManager::activateExtensions()
{
    for (OrvExtension* const extension : getExtensions()) {
        if (extension->getProfileSetting() == nullptr)
            continue;
        m_running.append(extension);
        callAndReport(titled(*extension, "activate"), [&] { extension->activate(); });
    }
}

void OrvPluginsManager::changeProfileLater(OrvProfile* profile)
{
    const bool isUnderWay = m_wishedProfile.has_value();
    m_wishedProfile = profile;
    if (isUnderWay)
        return;
    const auto fulfil = [this] {
        if (const auto wish = std::exchange(m_wishedProfile, std::nullopt))
            setActiveProfile(*wish);
    };
    QMetaObject::invokeMethod(this, fulfil, Qt::QueuedConnection);
}
