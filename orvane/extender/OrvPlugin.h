#pragma once

#include "meridane/base/values/VbString.h"

#include <QList>

class OrvExtension;

/// The version of the host's interface. It grows whenever a plug-in has to be built anew.
constexpr int orvaneInterfaceVersion = 2;

/// A plug-in: the owner of extensions. Its library exports `OrvPlugin* loadPlugin()` and `void unloadPlugin()` with C
/// linkage.
class OrvPlugin {
public:
    /// The default argument is evaluated where the plug-in is compiled, and tells the host what it was built against.
    explicit OrvPlugin(int interfaceVersion = orvaneInterfaceVersion);
    OrvPlugin(const OrvPlugin&) = delete;
    OrvPlugin& operator=(const OrvPlugin&) = delete;

    /// Loads the registered extensions, in the order of registration, each once. An override registers them first and
    /// calls this body last. What an extension throws is passed on; those ahead of it stay loaded until `unload`.
    virtual void load();
    /// Unloads the loaded extensions in reverse order, each once. They must have been deactivated. What an extension
    /// throws is passed on; a further call goes on with the next one.
    virtual void unload();

protected:
    /// The host destroys a plug-in through its library's `unloadPlugin` only.
    virtual ~OrvPlugin();

public:
    /// Registers an extension, which stays the caller's and must live as long as the plug-in. Null and what is
    /// registered already is ignored.
    void addExtension(OrvExtension* extension);

    [[nodiscard]] const QList<OrvExtension*>& getExtensions() const noexcept { return m_extensions; }
    [[nodiscard]] int getInterfaceVersion() const noexcept { return m_interfaceVersion; }
    [[nodiscard]] const VbString& getName() const noexcept { return m_name; }
    [[nodiscard]] const VbString& getDescription() const noexcept { return m_description; }
    [[nodiscard]] const VbString& getAuthor() const noexcept { return m_author; }
    [[nodiscard]] const VbString& getVersion() const noexcept { return m_version; }

protected:
    /// What the constructor of a derived class fills in.
    VbString m_name;
    VbString m_description;
    VbString m_author;
    VbString m_version;

private:
    int m_interfaceVersion;
    QList<OrvExtension*> m_extensions;
    /// The extensions ahead of this position are loaded.
    qsizetype m_loadedCount = 0;
};
