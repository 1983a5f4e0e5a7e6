#include "meridane/scene/nodes/NxPerspectiveCamera.h"

NX_NODE_SOURCE(NxPerspectiveCamera, NxCamera, "PerspectiveCamera")
