#include "extender/broken/Broken.h"

namespace {

class Extension : public Quiet<OrvExtension> {
public:
    Extension()
        : Quiet("")
    {
    }
};

} // namespace

BROKEN_EXTENSION(Extension)
