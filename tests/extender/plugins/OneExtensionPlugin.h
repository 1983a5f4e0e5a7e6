#pragma once

#include "orvane/extender/OrvPlugin.h"

/// A plug-in of a single extension, named after it.
template <typename Extension>
class OneExtensionPlugin final : public OrvPlugin {
public:
    OneExtensionPlugin() { m_name = m_extension.getName(); }
    ~OneExtensionPlugin() override = default;

    void load() override
    {
        addExtension(&m_extension);
        OrvPlugin::load();
    }

private:
    Extension m_extension;
};
