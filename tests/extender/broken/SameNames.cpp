#include "extender/broken/Broken.h"

namespace {

class Plugin final : public OrvPlugin {
public:
    Plugin() = default;
    ~Plugin() override = default;

    void load() override
    {
        addExtension(&m_first);
        addExtension(&m_second);
        OrvPlugin::load();
    }

private:
    Quiet<OrvExtension> m_first{"Compass"};
    Quiet<OrvExtension> m_second{"Compass"};
};

} // namespace

BROKEN_PLUGIN(Plugin)
