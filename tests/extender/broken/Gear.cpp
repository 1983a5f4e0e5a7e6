#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxGroup.h"

class BrokenGear : public NxGroup {
    NX_NODE(BrokenGear)
};

NX_NODE_SOURCE(BrokenGear, NxGroup, "BrokenGear")

BROKEN_EXTENSION(Quiet<OrvExtension>)
