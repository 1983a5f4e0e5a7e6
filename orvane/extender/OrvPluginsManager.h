#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <list>
#include <memory>
#include <optional>
#include <utility>

class OrvEditor;
class OrvExtension;
class OrvPlugin;
class OrvProfile;
class QWidget;

namespace orvane {
class LoadedPlugins;
struct LoadedPlugin;
} // namespace orvane

/// Loads plug-ins and keeps the profiles, of which one is active.
///
/// The application makes the only object. No failure here ends the tool: failures are values for the caller to show,
/// and an exception from a running extension is caught and posted as an `NxDebugError`. Thread of the user interface
/// only.
class OrvPluginsManager : public QObject {
    Q_OBJECT

public:
    /// The manager, or null while there is none.
    [[nodiscard]] static OrvPluginsManager* getInstance();

    OrvPluginsManager();
    /// Stops the active profile and unloads all plug-ins.
    ~OrvPluginsManager() override;

    /// The files in these folders whose name is that of a plug-in, `libkal_orvane_extender_*.so`, in the order of the
    /// folders and, in each, of the names. A file name that was found before is left out.
    [[nodiscard]] static QStringList findPlugins(const QStringList& folders);
    /// Loads the library and the plug-in that it makes, with its extensions. Returns the message of the failure, in one
    /// line that begins with the file name, or nothing. A plug-in that fails to load is unloaded and destroyed again. A
    /// library that was mapped stays mapped until the process ends. If a profile is active, it is applied again, for
    /// the new extensions. What is wrong with a plug-in that was loaded is told by `noticed`.
    [[nodiscard]] std::optional<QString> loadPlugin(const QString& fileName);
    /// Loads a plug-in that the caller made. The caller destroys it after `unloadPlugins`, or at once if this fails.
    [[nodiscard]] std::optional<QString> addPlugin(OrvPlugin* plugin);
    /// Stops the active profile, unloads the plug-ins in reverse order and lets their libraries destroy them. An
    /// extension must not call it.
    void unloadPlugins();

    /// The plug-in that was loaded from this file, under whatever name of it, or null.
    [[nodiscard]] const OrvPlugin* findPlugin(const QString& fileName) const;
    /// All extensions in the order of registration.
    [[nodiscard]] QList<OrvExtension*> getExtensions() const;

    /// Handles an exception of a plug-in: to be called in a handler, with what went on, such as "an event". Returns
    /// false and does nothing if no plug-in threw it.
    ///
    /// Posts an error that names the plug-in, and puts it to rest: from the event loop the active profile is applied
    /// again without its extensions, which don't run again until the program ends. A plug-in of many extensions goes
    /// on, since most of it isn't concerned.
    [[nodiscard]] bool handleException(const QString& during);

    /// Reports a fault that the host has mended, such as "a dock of it has no title": a text that goes on after the
    /// plug-in's name. Does nothing unless an extension is being activated or deactivated, whose plug-in is meant.
    void reportMended(const QString& text);

    /// Appends a profile. A profile without a name, or with one that is taken, is refused with a message.
    [[nodiscard]] std::optional<QString> addProfile(std::unique_ptr<OrvProfile> profile);
    /// The profiles in the order in which a user sees them.
    [[nodiscard]] const std::list<OrvProfile*>& getProfilesList() const noexcept { return m_profilesList; }
    /// The profile of that name, or null.
    [[nodiscard]] OrvProfile* findProfile(const QString& name) const;

    /// The active profile, or null.
    [[nodiscard]] OrvProfile* getActiveProfile() const noexcept { return m_activeProfile; }
    /// Makes a profile of the list the active one: deactivates the running extensions in reverse order and activates
    /// those that the profile runs, in the order of registration; then announces the selection again, so that the new
    /// docks show it. A profile that is active already is applied again. Null only deactivates. A profile that isn't in
    /// the list is ignored. A warning is posted for extensions that the profile names and no plug-in has.
    ///
    /// An extension may call it from one of its own slots, since nothing is destroyed. A call during a change, for
    /// example by an extension that is being activated, takes effect from the event loop; the last such call counts. A
    /// call during `unloadPlugins` is ignored.
    void setActiveProfile(OrvProfile* profile);

Q_SIGNALS:
    /// Something is wrong with a plug-in that is loaded: its file name, as it was passed to `loadPlugin`, and a text of
    /// one line that begins with it. What goes wrong once it was loaded is posted as an `NxDebugError` as well.
    void noticed(const QString& fileName, const QString& text);
    /// An extension is about to be activated or deactivated, or a plug-in is about to be loaded or unloaded with its
    /// extensions. Who has put something on top of what the callee has taken over, such as a standard stream, takes it
    /// away now. `callee` identifies the extension or plug-in and must not be used otherwise; `name` is its name.
    void aboutToCall(const void* callee, const QString& name);
    /// That call has returned. The callee may be destroyed.
    void called(const void* callee);

private:
    class AnnouncedCall;

    [[nodiscard]] bool putToRest(const QString& during, OrvExtension* running);
    void applyAgainLater();
    void notice(const orvane::LoadedPlugin& plugin, const QString& text, int severity);
    void inspect(const orvane::LoadedPlugin& plugin, bool hasCalledLoad);
    void watch(OrvPlugin& plugin);
    void releaseDying(OrvEditor& editor);
    void noteLostWidget(OrvEditor& editor, const QWidget* widget);
    void forget(const OrvExtension* extension, const OrvPlugin* plugin);
    template <typename Call>
    void callExtension(OrvExtension& extension, const char* operation, const Call& call);
    [[nodiscard]] std::optional<QString> takeIn(const orvane::LoadedPlugin& plugin);
    void destroy(const orvane::LoadedPlugin& plugin);
    void changeProfile(OrvProfile* profile);
    void reportMissing(const OrvProfile& profile, const QStringList& names);
    void deactivateExtensions();
    void dropConnections(OrvExtension& extension);
    void shareSettings() const;
    void activateExtensions();
    void changeProfileLater(OrvProfile* profile);

    std::unique_ptr<orvane::LoadedPlugins> m_plugins;
    std::list<std::unique_ptr<OrvProfile>> m_profiles;
    std::list<OrvProfile*> m_profilesList;
    /// The extensions that the active profile runs, in the order of activation.
    QList<OrvExtension*> m_running;
    OrvProfile* m_activeProfile = nullptr;
    std::pair<const OrvProfile*, QStringList> m_reportedMissing; // what was said last
    const OrvExtension* m_called = nullptr; // that is being activated or deactivated
    bool m_isChanging = false;
    bool m_isUnloading = false;
    /// The profile of the last call during a change, which may be null.
    std::optional<OrvProfile*> m_wishedProfile;
};
