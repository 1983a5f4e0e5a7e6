#include "meridane/scene/nodes/NxPointLight.h"

NX_NODE_SOURCE(NxPointLight, NxLight, "PointLight", "A lamp that shines into all directions.")
