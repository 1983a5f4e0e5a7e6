#pragma once

#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/nodes/NxGroup.h"

/// A group whose children are transformed by a matrix. Points are rows and multiply from the left.
class NxMatrixTransform : public NxGroup {
    NX_NODE(NxMatrixTransform)

public:
    /// The matrix from the children to the group above; the translation is in the last row.
    NxSFMatrix matrix{this, "matrix"};

protected:
    ~NxMatrixTransform() override = default;
};
