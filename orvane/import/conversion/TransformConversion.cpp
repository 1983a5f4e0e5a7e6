#include "orvane/import/conversion/TransformConversion.h"

#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <array>
#include <cmath>

#include <assimp/matrix3x3.h>
#include <assimp/quaternion.h>

namespace orvane {
namespace {

// The tolerance for a matrix read from decimal text.
constexpr float tolerance = 1e-4F;

struct Parts {
    VbVec3f translation;
    VbRotation rotation;
    VbVec3f scale;
};

VbRotation rotationOf(const aiMatrix3x3& matrix)
{
    const aiQuaternion q(matrix);
    const float quaternion[] = {q.x, q.y, q.z, q.w};
    return VbRotation().setValue(quaternion);
}

bool isNear(float value, float expected)
{
    return std::abs(value - expected) <= tolerance; // false for a NaN
}

bool decompose(const aiMatrix4x4& m, Parts& parts)
{
    std::array<aiVector3D, 3> axes{{{m.a1, m.b1, m.c1}, {m.a2, m.b2, m.c2}, {m.a3, m.b3, m.c3}}};
    if (!isNear(m.d1, 0) || !isNear(m.d2, 0) || !isNear(m.d3, 0) || !isNear(m.d4, 1))
        return false;
    std::array<float, 3> scale{};
    for (std::size_t index = 0; index < 3; ++index) {
        scale[index] = axes[index].Length();
        if (!(scale[index] > 0) || !std::isfinite(scale[index]))
            return false;
        axes[index] /= scale[index];
    }
    if (!isNear(axes[0] * axes[1], 0) || !isNear(axes[1] * axes[2], 0) || !isNear(axes[2] * axes[0], 0))
        return false;
    // A mirror becomes one negative factor; a rotation can't express it.
    if ((axes[0] ^ axes[1]) * axes[2] < 0) {
        axes[0] = -axes[0];
        scale[0] = -scale[0];
    }
    // A factor that is 1 but for rounding becomes exactly 1, so that the field keeps its default.
    for (float& factor : scale)
        factor = isNear(factor, 1) && std::abs(factor - 1) < 1e-6F ? 1 : factor;
    parts.translation.setValue(m.a4, m.b4, m.c4);
    parts.rotation = rotationOf(
        {axes[0].x, axes[1].x, axes[2].x, axes[0].y, axes[1].y, axes[2].y, axes[0].z, axes[1].z, axes[2].z});
    parts.scale.setValue(scale[0], scale[1], scale[2]);
    return true;
}

aiMatrix4x4 translationMatrix(const VbVec3f& vector)
{
    aiMatrix4x4 matrix;
    aiMatrix4x4::Translation(toAiVector(vector), matrix);
    return matrix;
}

aiMatrix4x4 scalingMatrix(const VbVec3f& factors)
{
    aiMatrix4x4 matrix;
    aiMatrix4x4::Scaling(toAiVector(factors), matrix);
    return matrix;
}

} // namespace

VbMatrix toMatrix(const aiMatrix4x4& m)
{
    return {m.a1, m.b1, m.c1, m.d1, m.a2, m.b2, m.c2, m.d2, m.a3, m.b3, m.c3, m.d3, m.a4, m.b4, m.c4, m.d4};
}

aiMatrix4x4 toAiMatrix(const VbMatrix& m)
{
    return {m[0][0], m[1][0], m[2][0], m[3][0], m[0][1], m[1][1], m[2][1], m[3][1], m[0][2], m[1][2], m[2][2], m[3][2],
        m[0][3], m[1][3], m[2][3], m[3][3]};
}

aiMatrix4x4 rigidMatrix(const VbRotation& rotation, const VbVec3f& translation)
{
    const std::array<float, 4> q = rotation.getQuaternion();
    return translationMatrix(translation) * aiMatrix4x4(aiQuaternion(q[3], q[0], q[1], q[2]).GetMatrix());
}

VbRotation rotationTo(const aiVector3D& direction, const aiVector3D& up)
{
    aiVector3D z = -direction;
    if (!(z.Length() > 0))
        return {};
    z.Normalize();
    aiVector3D x = up ^ z;
    // Straight up or down, any direction across the view is suitable.
    if (!(x.Length() > tolerance * up.Length()))
        x = (std::abs(z.y) < 0.9F ? aiVector3D(0, 1, 0) : aiVector3D(0, 0, -1)) ^ z;
    x.Normalize();
    const aiVector3D y = z ^ x;
    return rotationOf({x.x, y.x, z.x, x.y, y.y, z.y, x.z, y.z, z.z});
}

bool isRigid(const aiMatrix4x4& matrix, VbRotation& rotation, VbVec3f& translation)
{
    Parts parts;
    if (!decompose(matrix, parts))
        return false;
    rotation = parts.rotation;
    translation = parts.translation;
    return isNear(parts.scale[0], 1) && isNear(parts.scale[1], 1) && isNear(parts.scale[2], 1);
}

NxRef<NxGroup> makeTransform(const aiMatrix4x4& matrix)
{
    Parts parts;
    if (!decompose(matrix, parts)) {
        NxRef<NxMatrixTransform> transform = new NxMatrixTransform;
        transform->matrix.setValue(toMatrix(matrix));
        return transform;
    }
    NxRef<NxTransform> transform = new NxTransform;
    transform->translation.setValue(parts.translation);
    if (parts.rotation.getAngle() != 0)
        transform->rotation.setValue(parts.rotation);
    transform->scaleFactor.setValue(parts.scale);
    return transform;
}

aiMatrix4x4 matrixOf(const NxGroup& group)
{
    if (const auto* matrix = dynamic_cast<const NxMatrixTransform*>(&group))
        return toAiMatrix(matrix->matrix.getValue());
    const auto* transform = dynamic_cast<const NxTransform*>(&group);
    if (transform == nullptr)
        return {};
    const VbVec3f& center = transform->center.getValue();
    const VbVec3f back(-center[0], -center[1], -center[2]);
    return translationMatrix(transform->translation.getValue()) * rigidMatrix(transform->rotation.getValue(), center)
        * scalingMatrix(transform->scaleFactor.getValue()) * translationMatrix(back);
}

} // namespace orvane
