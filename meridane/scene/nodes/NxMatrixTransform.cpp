#include "meridane/scene/nodes/NxMatrixTransform.h"

NX_NODE_SOURCE(NxMatrixTransform, NxGroup, "MatrixTransform")
