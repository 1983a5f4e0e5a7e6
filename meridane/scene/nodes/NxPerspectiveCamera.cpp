#include "meridane/scene/nodes/NxPerspectiveCamera.h"

NX_NODE_SOURCE(NxPerspectiveCamera, NxCamera, "PerspectiveCamera", "A camera that sees distant things smaller.")
