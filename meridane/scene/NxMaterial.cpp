#include "meridane/scene/NxMaterial.h"

NX_NODE_SOURCE(NxMaterial, NxNode, "Material")
