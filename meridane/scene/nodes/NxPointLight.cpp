#include "meridane/scene/nodes/NxPointLight.h"

NX_NODE_SOURCE(NxPointLight, NxLight, "PointLight")
