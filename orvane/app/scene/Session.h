#pragma once

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/Result.h"
#include "orvane/app/plugins/PluginLoader.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvServices.h"

#include <QStringList>

/// Everything the tool needs apart from its window: services, scene, plug-ins, profiles, settings.
///
/// There is one, and it is made after the application object. A window that shows it is made after it and destroyed
/// before it. Without a window plug-ins can be loaded but no profile activated, since extensions need a shell.
class Session {
public:
    explicit Session(AppSettings::Mode settings);
    Session(AppSettings::Mode settings, const QString& settingsFileName);
    /// Shuts down what `shutDown` has left.
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Reads the user's file of toolkit preferences; what is wrong with it is posted as toolkit errors.
    void loadPreferences();
    /// Loads the plug-ins that were found, unless they are switched off, and those that the user asked for, in this
    /// order. The result has one message for each that failed; the others are there.
    QStringList loadPlugins(const QStringList& found, const QStringList& askedFor = {});
    /// Loads the profiles (`*.json`) of these folders, in the order of the folders and, in each, of the file names.
    /// The result has one message for each that is refused.
    QStringList loadProfiles(const QStringList& folders);
    /// Fails when there is no profile of that name, with the names that there are.
    [[nodiscard]] orvane::Result<> checkProfile(const QString& name) const;
    /// Activates the profile of that name; the empty name means the one used last, else the first of the list. When no
    /// profile has that name, the same is activated, and the result is a failure. Needs a window.
    orvane::Result<> activateProfile(const QString& name);

    /// Takes everything down in order: selection, profile, history, plug-ins, scene. Does nothing the second time. The
    /// window calls it in its destructor, since extensions leave the shell here.
    void shutDown();

    [[nodiscard]] AppSettings& settings() noexcept { return m_settings; }
    [[nodiscard]] OrvServices& services() noexcept { return m_services; }
    [[nodiscard]] OrvPluginsManager& plugins() noexcept { return m_plugins; }
    [[nodiscard]] PluginLoader& pluginLoader() noexcept { return m_pluginLoader; }
    [[nodiscard]] SceneDisposal& disposal() noexcept { return m_disposal; }
    [[nodiscard]] SceneDocument& document() noexcept { return m_document; }

private:
    AppSettings::Mode m_mode;
    AppSettings m_settings;
    SceneDisposal m_disposal;
    OrvServices m_services;
    OrvPluginsManager m_plugins;
    PluginLoader m_pluginLoader;
    SceneDocument m_document;
    bool m_down = false;
};
