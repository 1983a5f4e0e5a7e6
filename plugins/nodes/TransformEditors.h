#pragma once

#include "plugins/nodes/GroupForm.h"

#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxTransform.h"

namespace nodes {

/// Where a transform places its children: its fields, the matrix that they make, and what is below.
class TransformEditor final : public GroupForm<NxTransform> {
    void build() override;
};

/// The matrix of a transform, what it does, and what is below.
class MatrixTransformEditor final : public GroupForm<NxMatrixTransform> {
    void build() override;
};

} // namespace nodes
