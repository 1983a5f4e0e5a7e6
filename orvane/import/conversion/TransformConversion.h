#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <assimp/matrix4x4.h>
#include <assimp/types.h>

/// Places and directions between a scene and the import library, whose points are columns and multiply from the right.
namespace orvane {

[[nodiscard]] inline VbVec3f toVec(const aiVector3D& vector)
{
    return {vector.x, vector.y, vector.z};
}
[[nodiscard]] inline aiVector3D toAiVector(const VbVec3f& vector)
{
    return {vector[0], vector[1], vector[2]};
}
[[nodiscard]] VbMatrix toMatrix(const aiMatrix4x4& matrix);
[[nodiscard]] aiMatrix4x4 toAiMatrix(const VbMatrix& matrix);

/// The matrix that turns by that rotation and then moves.
[[nodiscard]] aiMatrix4x4 rigidMatrix(const VbRotation& rotation, const VbVec3f& translation);
/// The rotation that turns negative z to `direction` and positive y towards `up`. Vectors of any length, also of none.
[[nodiscard]] VbRotation rotationTo(const aiVector3D& direction, const aiVector3D& up);
/// The parts of a matrix that doesn't scale: false for another one.
[[nodiscard]] bool isRigid(const aiMatrix4x4& matrix, VbRotation& rotation, VbVec3f& translation);

/// A new group that places its children by that matrix: an `NxTransform` if its fields can tell it, which needs a
/// matrix without shear, else an `NxMatrixTransform`.
[[nodiscard]] NxRef<NxGroup> makeTransform(const aiMatrix4x4& matrix);
/// How a group places its children: the identity for one that doesn't.
[[nodiscard]] aiMatrix4x4 matrixOf(const NxGroup& group);

} // namespace orvane
