#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxNode.h"

#include <stdexcept>

class BrokenSpring : public NxNode {
    NX_NODE(BrokenSpring)

public:
    BrokenSpring() { throw std::runtime_error("the spring is gone"); }
};

NX_NODE_SOURCE(BrokenSpring, NxNode, "BrokenSpring")

BROKEN_EXTENSION(Quiet<OrvExtension>)
