#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <assimp/matrix4x4.h>
#include <assimp/types.h>

/// Converts transforms between a scene and the import library, whose points are columns and multiply from the right.
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

/// The matrix that rotates and then translates.
[[nodiscard]] aiMatrix4x4 rigidMatrix(const VbRotation& rotation, const VbVec3f& translation);
/// The rotation that turns negative z to `direction` and positive y towards `up`. The vectors may have any length, even
/// 0.
[[nodiscard]] VbRotation rotationTo(const aiVector3D& direction, const aiVector3D& up);
/// The parts of a matrix without scale. Returns false for any other matrix.
[[nodiscard]] bool isRigid(const aiMatrix4x4& matrix, VbRotation& rotation, VbVec3f& translation);

/// A new group with that local transform: an `NxTransform` if the matrix has no shear, else an `NxMatrixTransform`.
[[nodiscard]] NxRef<NxGroup> makeTransform(const aiMatrix4x4& matrix);
/// The local transform of a group: the identity for a group that doesn't transform.
[[nodiscard]] aiMatrix4x4 matrixOf(const NxGroup& group);

} // namespace orvane
