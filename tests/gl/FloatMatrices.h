#pragma once

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"

/// Matrices and points in single precision, which is enough for the small scenes of the tests.
namespace meridane {

inline VbMatrix translationMatrix(const VbVec3f& distance)
{
    return narrowed(translationMatrix(VbVec3d(distance)));
}

inline VbMatrix scaleMatrix(const VbVec3f& factors)
{
    VbMatrix matrix;
    for (std::size_t i = 0; i < 3; ++i)
        matrix[i][i] = factors[i];
    return matrix;
}

inline VbVec3f transformPoint(const VbVec3f& point, const VbMatrix& matrix)
{
    return narrowed(transformPoint(VbVec3d(point), Matrix4d(matrix)));
}

/// From the scene to the eye.
inline VbMatrix viewMatrix(const NxViewpoint& viewpoint)
{
    return narrowed(
        multiply(translationMatrix(scaled(viewpoint.usablePosition(), -1.0)), Matrix4d(viewpoint.viewRotation())));
}

} // namespace meridane
