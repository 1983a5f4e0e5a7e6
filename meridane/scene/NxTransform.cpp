#include "meridane/scene/NxTransform.h"

NX_NODE_SOURCE(NxTransform, NxGroup, "Transform")
