#pragma once

#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/nodes/NxGroup.h"

/// A group whose children are transformed by a matrix. Points are rows and multiply from the left.
class NxMatrixTransform : public NxGroup {
    NX_NODE(NxMatrixTransform)

public:
    NxSFMatrix matrix{
        this, {"matrix", "The matrix from the children to the group above, with the translation in the last row."}};

protected:
    ~NxMatrixTransform() override = default;
};
