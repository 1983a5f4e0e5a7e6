#include "meridane/scene/nodes/NxTransform.h"

NX_NODE_SOURCE(
    NxTransform, NxGroup, "Transform", "A group whose children are scaled and turned about a point, then moved.")
