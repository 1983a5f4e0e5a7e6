#include "orvane/extender/detail/LoadedPlugins.h"

#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/Guarded.h"
#include "orvane/extender/detail/ThrowSite.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QFileInfo>

#include <algorithm>

namespace orvane {
namespace {

// Returns false if it threw.
template <typename Call>
bool callAndReport(const QString& title, const Call& call)
{
    const auto thrown = guarded(call);
    if (thrown)
        NxDebugError::post(
            NxDebugError::Error, toVbString(QStringLiteral("%1 threw an exception: %2").arg(title, *thrown)));
    return !thrown;
}

} // namespace

void unloadAndDestroy(const LoadedPlugin& loaded)
{
    OrvPlugin& plugin = *loaded.plugin;
    // A call that throws skips one extension, and the next call continues behind it.
    qsizetype calls = plugin.getExtensions().size() + 1;
    while (calls > 0 && !callAndReport(loaded.title, [&] { plugin.unload(); }))
        --calls;
    // An override may not call the body.
    callAndReport(loaded.title, [&] { plugin.OrvPlugin::unload(); });
    if (loaded.destroy != nullptr)
        callAndReport(loaded.title, loaded.destroy);
}

const LoadedPlugin* LoadedPlugins::findFile(const QString& fileName) const
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    const auto found = path.isEmpty() ? m_plugins.end() : std::ranges::find(m_plugins, path, &LoadedPlugin::fileName);
    return found != m_plugins.end() ? &*found : nullptr;
}

LoadedPlugin* LoadedPlugins::findThrower()
{
    for (const QString& library : throwingLibraries()) {
        const QString path = QFileInfo(library).canonicalFilePath();
        const auto found
            = path.isEmpty() ? m_plugins.end() : std::ranges::find(m_plugins, path, &LoadedPlugin::fileName);
        if (found != m_plugins.end())
            return &*found;
    }
    return nullptr;
}

LoadedPlugin* LoadedPlugins::findOwner(const OrvExtension* extension)
{
    const auto has = [&](const LoadedPlugin& plugin) { return plugin.plugin->getExtensions().contains(extension); };
    const auto found = std::ranges::find_if(m_plugins, has);
    return found != m_plugins.end() ? &*found : nullptr;
}

QList<OrvExtension*> LoadedPlugins::extensions() const
{
    QList<OrvExtension*> extensions;
    for (const LoadedPlugin& plugin : m_plugins)
        extensions += plugin.plugin->getExtensions();
    return extensions;
}

QList<OrvExtension*> LoadedPlugins::willingExtensions() const
{
    QList<OrvExtension*> extensions;
    for (const LoadedPlugin& plugin : m_plugins) {
        if (!plugin.isResting)
            extensions += plugin.plugin->getExtensions();
    }
    extensions.removeIf([this](const OrvExtension* extension) { return isResting(extension); });
    return extensions;
}

bool LoadedPlugins::areAnyResting() const
{
    return !m_resting.isEmpty() || std::ranges::any_of(m_plugins, &LoadedPlugin::isResting);
}

} // namespace orvane
