#pragma once

#include "orvane/extender/PluginStamp.h"

#include "meridane/base/values/VbString.h"

#include <QList>
#include <QStringList>

class OrvExtension;

/// The version of the host's interface. It grows when plug-ins have to be changed; that they have to be built again is
/// seen by their stamps (PluginStamp.h).
constexpr int orvaneInterfaceVersion = 4;

/// A plug-in: the owner of extensions. Its library exports `OrvPlugin* loadPlugin()` and `void unloadPlugin()` with C
/// linkage.
class OrvPlugin {
public:
    /// The default argument is evaluated where the plug-in is compiled, so the host learns which version it was built
    /// against.
    explicit OrvPlugin(int interfaceVersion = orvaneInterfaceVersion);
    OrvPlugin(const OrvPlugin&) = delete;
    OrvPlugin& operator=(const OrvPlugin&) = delete;

    /// Loads the registered extensions, in the order of registration, each once. An override registers them first and
    /// calls this body last. What an extension throws is passed on; those before it stay loaded until `unload`.
    virtual void load();
    /// Unloads the loaded extensions in reverse order, each once. They must have been deactivated. What an extension
    /// throws is passed on; a further call goes on with the next one.
    virtual void unload();

protected:
    /// The host destroys a plug-in through its library's `unloadPlugin` only.
    virtual ~OrvPlugin();

public:
    /// Registers an extension. The caller owns it, and it must live until it was unloaded. Null, and an extension that
    /// is registered already, are ignored. One that is destroyed is registered no more.
    void addExtension(OrvExtension* extension);

    /// In the order of registration.
    [[nodiscard]] const QList<OrvExtension*>& getExtensions() const noexcept { return m_extensions; }
    /// Whether `load` has been called for all registered extensions, and `unload` for none of them.
    [[nodiscard]] bool isLoaded() const noexcept { return m_loadedCount == m_extensions.size(); }
    /// The names of the registered extensions that were destroyed.
    [[nodiscard]] const QStringList& getLostExtensions() const noexcept { return m_lostExtensions; }
    /// The one that it was built against.
    [[nodiscard]] int getInterfaceVersion() const noexcept { return m_interfaceVersion; }
    [[nodiscard]] const VbString& getName() const noexcept { return m_name; } ///< For the user.
    /// One sentence for the user.
    [[nodiscard]] const VbString& getDescription() const noexcept { return m_description; }
    [[nodiscard]] const VbString& getAuthor() const noexcept { return m_author; } ///< Who wrote it.
    [[nodiscard]] const VbString& getVersion() const noexcept { return m_version; } ///< Of any form.

protected:
    /// Set by the constructor of a derived class.
    VbString m_name;
    VbString m_description; ///< One sentence for the user.
    VbString m_author; ///< Who wrote it.
    VbString m_version; ///< Of any form.

private:
    void forget(const OrvExtension* extension, const QString& name);

    int m_interfaceVersion;
    QList<OrvExtension*> m_extensions;
    /// The extensions before this position are loaded.
    qsizetype m_loadedCount = 0;
    QStringList m_lostExtensions;
};
