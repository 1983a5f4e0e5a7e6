#include "meridane/scene/nodes/NxMaterial.h"

NX_NODE_SOURCE(NxMaterial, NxNode, "Material")
