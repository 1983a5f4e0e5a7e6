#include "orvane/extender/OrvPluginsManager.h"

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/CallExtensions.h"
#include "orvane/extender/detail/Guarded.h"
#include "orvane/extender/detail/LoadedPlugins.h"
#include "orvane/extender/detail/PluginFaults.h"
#include "orvane/extender/detail/PluginLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <ranges>
#include <utility>

namespace {

OrvPluginsManager* theManager = nullptr;

} // namespace

/// Announces a call of an extension or a plug-in while it lives.
class OrvPluginsManager::AnnouncedCall {
public:
    AnnouncedCall(OrvPluginsManager& manager, const void* callee, const QString& name)
        : m_manager(manager)
        , m_callee(callee)
    {
        Q_EMIT manager.aboutToCall(callee, name);
    }
    AnnouncedCall(const AnnouncedCall&) = delete;
    AnnouncedCall& operator=(const AnnouncedCall&) = delete;
    ~AnnouncedCall() { Q_EMIT m_manager.called(m_callee); }

private:
    OrvPluginsManager& m_manager;
    const void* m_callee;
};

OrvPluginsManager* OrvPluginsManager::getInstance()
{
    return theManager;
}

OrvPluginsManager::OrvPluginsManager()
    : m_plugins(std::make_unique<orvane::LoadedPlugins>())
{
    Q_ASSERT_X(theManager == nullptr, "OrvPluginsManager", "there is one manager at a time");
    theManager = this;
    orvane::setExceptionHandler([this](const QString& during) { return handleException(during); });
    orvane::setDyingEditorHandler([this](OrvEditor& editor) { releaseDying(editor); });
}

OrvPluginsManager::~OrvPluginsManager()
{
    unloadPlugins();
    orvane::setExceptionHandler({});
    orvane::setDyingEditorHandler({});
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
    const std::vector<NxType> classesBefore = orvane::nodeClasses();
    const orvane::OpenedLibrary opened = orvane::openPluginLibrary(fileName);
    const QStringList brokenClasses = orvane::dropBrokenClasses(classesBefore);
    if (opened.error)
        return opened.error;
    auto failure = takeIn({opened.library.plugin, fileName, path, opened.library.unloadPlugin});
    for (const QString& text : brokenClasses)
        Q_EMIT noticed(fileName, QStringLiteral("%1: %2").arg(fileName, text));
    return failure;
}

std::optional<QString> OrvPluginsManager::addPlugin(OrvPlugin* plugin)
{
    return takeIn({plugin, orvane::toQString(plugin->getName()), {}, nullptr});
}

std::optional<QString> OrvPluginsManager::takeIn(const orvane::LoadedPlugin& plugin)
{
    bool hasCalledLoad = true;
    const auto load = [&] {
        const AnnouncedCall call(*this, plugin.plugin, plugin.title);
        plugin.plugin->load();
        hasCalledLoad = plugin.plugin->isLoaded();
        plugin.plugin->OrvPlugin::load();
    };
    if (const auto thrown = orvane::guarded(load)) {
        destroy(plugin);
        return QStringLiteral("%1: it can't be loaded, for it threw an exception: %2").arg(plugin.title, *thrown);
    }
    m_plugins->list().push_back(plugin);
    inspect(plugin, hasCalledLoad);
    watch(*plugin.plugin);
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
    while (!m_plugins->list().empty()) {
        const orvane::LoadedPlugin plugin = m_plugins->list().back();
        m_plugins->list().pop_back();
        destroy(plugin);
    }
}

void OrvPluginsManager::destroy(const orvane::LoadedPlugin& plugin)
{
    const AnnouncedCall call(*this, plugin.plugin, plugin.title);
    unloadAndDestroy(plugin);
}

const OrvPlugin* OrvPluginsManager::findPlugin(const QString& fileName) const
{
    const orvane::LoadedPlugin* const found = m_plugins->findFile(fileName);
    return found != nullptr ? found->plugin : nullptr;
}

QList<OrvExtension*> OrvPluginsManager::getExtensions() const
{
    return m_plugins->extensions();
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
        reportMissing(*profile, profile->resolve(m_plugins->willingExtensions()));
    shareSettings();
    activateExtensions();
    if (OrvServices* const services = OrvServices::getInstance(); services != nullptr && profile != nullptr)
        services->announceSelection();
}

// An operation that throws doesn't keep the others from being called.
template <typename Call>
void OrvPluginsManager::callExtension(OrvExtension& extension, const char* operation, const Call& call)
{
    const QScopedValueRollback<const OrvExtension*> called(m_called, &extension);
    const AnnouncedCall announced(*this, &extension, orvane::toQString(extension.getName()));
    try {
        call();
    } catch (...) {
        const QString during = QStringLiteral("\"%1\" of the extension \"%2\"")
                                   .arg(QLatin1String(operation), orvane::toQString(extension.getName()));
        if (!putToRest(during, &extension))
            throw;
    }
}

void OrvPluginsManager::deactivateExtensions()
{
    while (!m_running.isEmpty()) {
        const QPointer<OrvExtension> extension = m_running.takeLast();
        callExtension(*extension, "deactivate", [&] { extension->deactivate(); });
        // A dock may have been stopped half-way by an editor, which it has given up then.
        if (extension && extension->isActive()) {
            const AnnouncedCall again(*this, extension, orvane::toQString(extension->getName()));
            static_cast<void>(orvane::guarded([&] { extension->deactivate(); }));
        }
    }
    // Editors are deactivated by the docks.
    const QList<OrvExtension*> extensions = getExtensions();
    for (OrvExtension* const extension : extensions)
        dropConnections(*extension);
}

/// Gives each extension its setting in the active profile.
void OrvPluginsManager::shareSettings() const
{
    for (OrvExtension* const extension : getExtensions())
        extension->m_profileSetting = m_activeProfile != nullptr ? m_activeProfile->getSetting(extension) : nullptr;
}

void OrvPluginsManager::activateExtensions()
{
    const QList<OrvExtension*> extensions = getExtensions();
    // One may delete another one.
    const QList<QPointer<OrvExtension>> living(extensions.begin(), extensions.end());
    for (const QPointer<OrvExtension>& extension : living) {
        if (!extension || extension->getProfileSetting() == nullptr)
            continue;
        m_running.append(extension);
        callExtension(*extension, "activate", [&] { extension->activate(); });
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
