#include "meridane/scene/nodes/NxOrthographicCamera.h"

NX_NODE_SOURCE(NxOrthographicCamera, NxCamera, "OrthographicCamera")
