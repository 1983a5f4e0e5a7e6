#include "extender/broken/Broken.h"

namespace {

class Plugin final : public OrvPlugin {
public:
    Plugin() = default;
    ~Plugin() override = default;

    void load() override
    {
        const auto extension = std::make_unique<Quiet<OrvExtension>>("Compass");
        addExtension(extension.get());
    }
};

} // namespace

BROKEN_PLUGIN(Plugin)
