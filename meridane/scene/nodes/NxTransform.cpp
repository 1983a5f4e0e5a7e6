#include "meridane/scene/nodes/NxTransform.h"

NX_NODE_SOURCE(NxTransform, NxGroup, "Transform")
