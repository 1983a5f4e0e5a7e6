#include "meridane/scene/NxSpotLight.h"

NX_NODE_SOURCE(NxSpotLight, NxLight, "SpotLight")
