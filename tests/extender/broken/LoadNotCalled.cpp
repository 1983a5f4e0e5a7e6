#include "extender/broken/Broken.h"

namespace {

class Plugin final : public OrvPlugin {
public:
    Plugin() = default;
    ~Plugin() override = default;

    void load() override { addExtension(&m_extension); }

private:
    Quiet<OrvExtension> m_extension;
};

} // namespace

BROKEN_PLUGIN(Plugin)
