#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxNode.h"

class BrokenGear : public NxNode {
    NX_NODE(BrokenGear)
};

NX_NODE_SOURCE(BrokenGear, NxNode, "BrokenGear")

BROKEN_EXTENSION(Quiet<OrvExtension>)
