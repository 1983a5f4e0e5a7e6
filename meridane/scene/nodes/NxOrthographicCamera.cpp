#include "meridane/scene/nodes/NxOrthographicCamera.h"

NX_NODE_SOURCE(
    NxOrthographicCamera, NxCamera, "OrthographicCamera", "A camera that sees things of the same size at any distance.")
