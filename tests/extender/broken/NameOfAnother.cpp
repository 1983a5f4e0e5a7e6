#include "extender/broken/Broken.h"

namespace {

class Extension : public Quiet<OrvExtension> {
public:
    Extension()
        : Quiet("Console")
    {
    }
};

} // namespace

BROKEN_EXTENSION(Extension)
