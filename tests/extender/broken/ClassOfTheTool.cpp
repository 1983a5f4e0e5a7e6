#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxGroup.h"

class BrokenGroup : public NxGroup {
    NX_NODE(BrokenGroup)
};

NX_NODE_SOURCE(BrokenGroup, NxGroup, "Group")

BROKEN_EXTENSION(Quiet<OrvExtension>)
