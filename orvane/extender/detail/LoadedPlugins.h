#pragma once

#include <QList>
#include <QSet>
#include <QString>

#include <list>

class OrvExtension;
class OrvPlugin;

namespace orvane {

struct LoadedPlugin {
    OrvPlugin* plugin = nullptr;
    /// Its name in messages: the file name, or the plug-in's name.
    QString title;
    /// The library's canonical path; empty for a plug-in that the caller made.
    QString fileName;
    /// Destroys the plug-in; null if the caller does so.
    void (*destroy)() = nullptr;
    /// An exception has left it.
    bool isResting = false;
    /// The exceptions that were reported, since an extension may throw at each event.
    QSet<QString> reported = {};
};

/// Unloads a plug-in and lets its library destroy it. What it throws is posted as an `NxDebugError`.
void unloadAndDestroy(const LoadedPlugin& plugin);

/// The plug-ins that are loaded, and which of their extensions are at rest: they don't run until the program ends.
class LoadedPlugins {
public:
    [[nodiscard]] std::list<LoadedPlugin>& list() noexcept { return m_plugins; }
    [[nodiscard]] const std::list<LoadedPlugin>& list() const noexcept { return m_plugins; }

    /// The plug-in from this file, under whatever name of it; null for none.
    [[nodiscard]] const LoadedPlugin* findFile(const QString& fileName) const;
    /// The innermost plug-in that took part in the latest exception of this thread; null for none.
    [[nodiscard]] LoadedPlugin* findThrower();
    /// The plug-in that has registered the extension; null for none.
    [[nodiscard]] LoadedPlugin* findOwner(const OrvExtension* extension);

    /// All extensions in the order of registration.
    [[nodiscard]] QList<OrvExtension*> extensions() const;
    /// Those of them that aren't at rest.
    [[nodiscard]] QList<OrvExtension*> willingExtensions() const;
    /// Whether a plug-in, or an extension of one, is at rest.
    [[nodiscard]] bool areAnyResting() const;

    [[nodiscard]] bool isResting(const OrvExtension* extension) const { return m_resting.contains(extension); }
    void putToRest(const OrvExtension* extension) { m_resting.insert(extension); }
    /// For an extension that was destroyed.
    void forget(const OrvExtension* extension) { m_resting.remove(extension); }

private:
    std::list<LoadedPlugin> m_plugins;
    QSet<const OrvExtension*> m_resting;
};

} // namespace orvane
