#include "meridane/scene/nodes/NxSpotLight.h"

NX_NODE_SOURCE(NxSpotLight, NxLight, "SpotLight", "A lamp that shines into a cone.")
