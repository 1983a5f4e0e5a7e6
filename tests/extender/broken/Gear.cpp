#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/nodes/NxGroup.h"

// Nothing is wrong with this one by itself.
class BrokenGear : public NxGroup {
    NX_NODE(BrokenGear)

public:
    NxSFInt32 teeth{this, {"teeth", "How many teeth the gear has."}, 12};
};

NX_NODE_SOURCE(BrokenGear, NxGroup, "BrokenGear")

BROKEN_EXTENSION(Quiet<OrvExtension>)
