#include "meridane/scene/nodes/NxDirectionalLight.h"

NX_NODE_SOURCE(NxDirectionalLight, NxLight, "DirectionalLight")
