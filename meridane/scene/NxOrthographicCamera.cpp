#include "meridane/scene/NxOrthographicCamera.h"

NX_NODE_SOURCE(NxOrthographicCamera, NxCamera, "OrthographicCamera")
