#include "meridane/scene/NxPerspectiveCamera.h"

NX_NODE_SOURCE(NxPerspectiveCamera, NxCamera, "PerspectiveCamera")
