#include "meridane/scene/nodes/NxMatrixTransform.h"

NX_NODE_SOURCE(NxMatrixTransform, NxGroup, "MatrixTransform", "A group whose children are transformed by a matrix.")
