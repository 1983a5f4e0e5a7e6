#include "meridane/scene/nodes/NxMaterial.h"

NX_NODE_SOURCE(NxMaterial, NxNode, "Material", "The look of the surfaces that follow in the group.")
