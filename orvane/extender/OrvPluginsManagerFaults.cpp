#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/Guarded.h"
#include "orvane/extender/detail/LoadedPlugins.h"
#include "orvane/extender/detail/PluginFaults.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <ranges>
#include <utility>

// What is wrong with plug-ins: found, reported, and mended as far as it can be.

namespace {

const QString restText = QStringLiteral(", until the program is started again");

} // namespace

void OrvPluginsManager::inspect(const orvane::LoadedPlugin& plugin, bool hasCalledLoad)
{
    orvane::PluginFaults faults = orvane::faultsOf(*plugin.plugin);
    if (!hasCalledLoad)
        faults.texts.prepend(
            QStringLiteral("its \"load\" doesn't call OrvPlugin::load, so the tool has loaded its extensions"));
    for (OrvExtension* const extension : std::as_const(faults.unusable))
        m_plugins->putToRest(extension);
    for (const QString& text : std::as_const(faults.texts))
        Q_EMIT noticed(plugin.title, QStringLiteral("%1: %2").arg(plugin.title, text));
}

void OrvPluginsManager::watch(OrvPlugin& plugin)
{
    for (OrvExtension* const extension : plugin.getExtensions()) {
        connect(extension, &QObject::destroyed, this, [this, extension, &plugin] { forget(extension, &plugin); });
        auto* const editor = qobject_cast<OrvEditor*>(extension);
        if (QWidget* const widget = editor != nullptr ? editor->getWidget() : nullptr)
            connect(widget, &QObject::destroyed, this, [this, editor, widget] { noteLostWidget(*editor, widget); });
    }
}

// The dock that shows it uses the widget once more.
void OrvPluginsManager::noteLostWidget(OrvEditor& editor, const QWidget* widget)
{
    if (m_plugins->findOwner(&editor) == nullptr)
        return; // unloaded
    orvane::replaceWidget(editor, widget);
    // The editor itself may be about to go, which is reported then.
    const auto report = [this, living = QPointer<OrvEditor>(&editor)] {
        const orvane::LoadedPlugin* const plugin = living ? m_plugins->findOwner(living) : nullptr;
        if (plugin == nullptr)
            return;
        m_plugins->putToRest(living);
        applyAgainLater();
        notice(*plugin,
            QStringLiteral("its editor \"%1\" deleted its widget; it doesn't run any more")
                    .arg(orvane::toQString(living->getName()))
                + restText,
            NxDebugError::Error);
    };
    QMetaObject::invokeMethod(this, report, Qt::QueuedConnection);
}

// Docks release their editor when nothing is selected. The selection is announced again from the event loop.
void OrvPluginsManager::releaseDying(OrvEditor& editor)
{
    OrvServices* const services = OrvServices::getInstance();
    if (services == nullptr || m_plugins->findOwner(&editor) == nullptr)
        return;
    static_cast<void>(orvane::guarded([&] { Q_EMIT services->selectedFieldChanged(nullptr); }));
    static_cast<void>(orvane::guarded([&] { Q_EMIT services->selectedNodeChanged(nullptr); }));
    applyAgainLater();
}

void OrvPluginsManager::forget(const OrvExtension* extension, const OrvPlugin* plugin)
{
    m_running.removeIf([&](const OrvExtension* running) { return running == extension; });
    m_plugins->forget(extension);
    const auto& plugins = m_plugins->list();
    const auto owner = std::ranges::find(plugins, plugin, &orvane::LoadedPlugin::plugin);
    if (owner == plugins.end())
        return; // unloaded
    if (m_activeProfile != nullptr)
        static_cast<void>(m_activeProfile->resolve(m_plugins->willingExtensions()));
    shareSettings();
    notice(*owner,
        QStringLiteral("it deleted its extension \"%1\", which must live until it is unloaded")
            .arg(plugin->getLostExtensions().value(plugin->getLostExtensions().size() - 1)),
        NxDebugError::Error);
}

bool OrvPluginsManager::handleException(const QString& during)
{
    return putToRest(during, nullptr);
}

// Of a plug-in whose extension was running, that extension, else all of them: it isn't known then which one threw.
bool OrvPluginsManager::putToRest(const QString& during, OrvExtension* running)
{
    orvane::LoadedPlugin* const owner = running != nullptr ? m_plugins->findOwner(running) : nullptr;
    orvane::LoadedPlugin* thrower = m_plugins->findThrower();
    thrower = thrower != nullptr ? thrower : owner;
    if (thrower == nullptr)
        return false;
    constexpr qsizetype manyExtensions = 8;
    QString text = QStringLiteral("it threw an exception during %1: %2").arg(during, orvane::exceptionText());
    if (thrower->reported.contains(text))
        return true;
    thrower->reported.insert(text);
    if (thrower == owner && m_plugins->isResting(running)) {
        // That was said before.
    } else if (thrower == owner) {
        text += QStringLiteral("; the extension doesn't run any more") + restText;
        m_plugins->putToRest(running);
        applyAgainLater();
    } else if (!thrower->isResting && thrower->plugin->getExtensions().size() <= manyExtensions) {
        text += QStringLiteral("; its extensions don't run any more") + restText;
        thrower->isResting = true;
        applyAgainLater();
    }
    notice(*thrower, text, NxDebugError::Error);
    return true;
}

void OrvPluginsManager::applyAgainLater()
{
    const auto applyAgain = [this] {
        if (m_activeProfile != nullptr)
            setActiveProfile(m_activeProfile);
    };
    QMetaObject::invokeMethod(this, applyAgain, Qt::QueuedConnection);
}

void OrvPluginsManager::notice(const orvane::LoadedPlugin& plugin, const QString& text, int severity)
{
    const QString line = QStringLiteral("%1: %2").arg(plugin.title, text);
    Q_EMIT noticed(plugin.title, line);
    NxDebugError::post(severity, orvane::toVbString(line));
}

// Once for a profile and what it misses, since a profile is applied again for each plug-in that is loaded later.
void OrvPluginsManager::reportMissing(const OrvProfile& profile, const QStringList& names)
{
    const std::pair report(&profile, names);
    // Without any plug-in, or with one at rest, the user knows.
    if (names.isEmpty() || m_reportedMissing == report || m_plugins->list().empty() || m_plugins->areAnyResting())
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

void OrvPluginsManager::reportMended(const QString& text)
{
    if (const orvane::LoadedPlugin* const owner = m_plugins->findOwner(m_called))
        notice(*owner, text, NxDebugError::Warning);
}

void OrvPluginsManager::dropConnections(OrvExtension& extension)
{
    if (!orvane::disconnectFromServices(extension))
        return;
    const QString text
        = QStringLiteral("its extension \"%1\" was still connected to the tool after its \"deactivate\"; "
                         "the tool has disconnected it")
              .arg(orvane::toQString(extension.getName()));
    orvane::LoadedPlugin* const owner = m_plugins->findOwner(&extension);
    if (owner == nullptr || owner->reported.contains(text))
        return;
    owner->reported.insert(text);
    notice(*owner, text, NxDebugError::Warning);
}
