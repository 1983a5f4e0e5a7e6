#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

class BrokenAngle : public NxSFFloat {
    NX_FIELD(BrokenAngle)

public:
    using NxSFFloat::NxSFFloat;
};

NX_FIELD_SOURCE(BrokenAngle, NxSFFloat, "BrokenAngle")

BROKEN_EXTENSION(Quiet<OrvExtension>)
