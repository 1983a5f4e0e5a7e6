#include "meridane/scene/NxDirectionalLight.h"

NX_NODE_SOURCE(NxDirectionalLight, NxLight, "DirectionalLight")
