#include "extender/broken/Broken.h"

namespace {

class Extension : public Quiet<OrvExtension> {
public:
    void activate() override
    {
        Quiet::activate();
        connect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this, [] {});
    }
};

} // namespace

BROKEN_EXTENSION(Extension)
