#include "meridane/scene/NxPointLight.h"

NX_NODE_SOURCE(NxPointLight, NxLight, "PointLight")
