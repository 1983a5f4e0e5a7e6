#include "meridane/scene/NxMatrixTransform.h"

NX_NODE_SOURCE(NxMatrixTransform, NxGroup, "MatrixTransform")
