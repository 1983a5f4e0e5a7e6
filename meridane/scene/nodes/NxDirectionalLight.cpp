#include "meridane/scene/nodes/NxDirectionalLight.h"

NX_NODE_SOURCE(NxDirectionalLight, NxLight, "DirectionalLight",
    "Light from very far away, the same everywhere, such as that of the sun.")
