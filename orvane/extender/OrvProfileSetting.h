#pragma once

#include <map>

class OrvExtension;

/// The settings of one extension in one profile: which extensions it controls.
class OrvProfileSetting {
public:
    /// By ascending address. A controlled extension that runs by itself is mapped to its own setting, any other to
    /// null.
    using ControlledExtensions = std::map<OrvExtension*, OrvProfileSetting*>;

    /// The extensions that the owner of this setting controls, by their addresses, each with its own setting or null.
    [[nodiscard]] const ControlledExtensions& getControlledExtensions() const noexcept { return m_controlled; }
    /// Neither is owned; the setting may be null.
    void addControlledExtension(OrvExtension* extension, OrvProfileSetting* setting);

private:
    ControlledExtensions m_controlled;
};
