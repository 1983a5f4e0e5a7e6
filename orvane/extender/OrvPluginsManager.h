#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <list>
#include <memory>
#include <optional>

class OrvExtension;
class OrvPlugin;
class OrvProfile;

/// Loads plug-ins and keeps the profiles, of which one is active.
///
/// The application makes the one object. Nothing that goes wrong here ends the tool: failures are values for the caller
/// to show, and what a running extension throws is caught and posted as an `NxDebugError`. Thread of the user interface
/// only.
class OrvPluginsManager : public QObject {
    Q_OBJECT

public:
    /// The manager, or null while there is none.
    [[nodiscard]] static OrvPluginsManager* getInstance();

    OrvPluginsManager();
    /// Stops and unloads whatever is left.
    ~OrvPluginsManager() override;

    /// The files in these folders that are plug-ins by their name, `libkal_orvane_extender_*.so`, in the order of the
    /// folders and, in each, of the names; a file name found before is left out.
    [[nodiscard]] static QStringList findPlugins(const QStringList& folders);
    /// Loads the library, has it make its plug-in and loads that one, with its extensions. The result is the message of
    /// the failure, in one line with the file name ahead, or nothing. A plug-in that fails to load is unloaded and
    /// destroyed again. A library that was mapped stays so until the process ends. If a profile is active, it is made
    /// effective anew, for the new extensions.
    [[nodiscard]] std::optional<QString> loadPlugin(const QString& fileName);
    /// Loads a plug-in that the caller made and destroys after `unloadPlugins`; at once if this fails.
    [[nodiscard]] std::optional<QString> addPlugin(OrvPlugin* plugin);
    /// Stops the active profile, unloads the plug-ins in reverse order and has their libraries destroy them. Not to be
    /// called by an extension.
    void unloadPlugins();

    /// All extensions in the order of registration.
    [[nodiscard]] QList<OrvExtension*> getExtensions() const;

    /// Appends a profile. A profile without a name, or with one that is taken, is refused with a message.
    [[nodiscard]] std::optional<QString> addProfile(std::unique_ptr<OrvProfile> profile);
    /// The profiles in the order in which a user sees them.
    [[nodiscard]] const std::list<OrvProfile*>& getProfilesList() const noexcept { return m_profilesList; }
    /// The profile of that name, or null.
    [[nodiscard]] OrvProfile* findProfile(const QString& name) const;

    /// The active profile, or null.
    [[nodiscard]] OrvProfile* getActiveProfile() const noexcept { return m_activeProfile; }
    /// Makes a profile of the list the active one: deactivates what runs, in reverse order, and activates the
    /// extensions that the profile runs, in the order of registration; then announces the selection again, so that the
    /// new docks show it. The profile that is active already is made effective anew. Null only stops. What isn't in the
    /// list is ignored.
    ///
    /// May be called by an extension from within one of its own slots: nothing is destroyed in it. What is asked for
    /// during a change, be it by an extension that is being activated, is done from the event loop; the last wish
    /// counts. What is asked for while `unloadPlugins` works is ignored.
    void setActiveProfile(OrvProfile* profile);

Q_SIGNALS:
    /// The change is complete but for the announcement of the selection; null means that no profile is active.
    void activeProfileChanged(OrvProfile* profile);
    /// The profile that has become active names extensions that aren't there (see `OrvProfile::resolve`).
    void extensionsMissing(const QString& profile, const QStringList& names);

private:
    struct LoadedPlugin {
        OrvPlugin* plugin = nullptr;
        /// How the messages name it: its file, or its name.
        QString title;
        /// The library's canonical path; empty for a plug-in that the caller made.
        QString fileName;
        /// Destroys the plug-in; null where the caller does.
        void (*destroy)() = nullptr;
    };

    [[nodiscard]] std::optional<QString> takeIn(const LoadedPlugin& plugin);
    void changeProfile(OrvProfile* profile);
    void deactivateExtensions();
    void shareSettings() const;
    void activateExtensions();
    void changeProfileLater(OrvProfile* profile);

    std::list<LoadedPlugin> m_plugins;
    std::list<std::unique_ptr<OrvProfile>> m_profiles;
    std::list<OrvProfile*> m_profilesList;
    /// What the active profile runs, in the order of activation.
    QList<OrvExtension*> m_running;
    OrvProfile* m_activeProfile = nullptr;
    bool m_isChanging = false;
    bool m_isUnloading = false;
    /// The last wish that came in during a change, which may be null.
    std::optional<OrvProfile*> m_wishedProfile;
};
