#pragma once

#include "FieldTextDock.h"

#include "orvane/extender/OrvPlugin.h"

/// The plug-in object: it owns its extensions as members and registers them with the host.
class SamplePlugin final : public OrvPlugin {
public:
    SamplePlugin();
    ~SamplePlugin() override;

    void load() override;

private:
    FieldTextDock m_fieldTextDock;
};
