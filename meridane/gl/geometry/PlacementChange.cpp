#include "meridane/gl/geometry/PlacementChange.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <cmath>

namespace meridane {

PlacementChange PlacementChange::move(const VbVec3d& distance)
{
    PlacementChange change;
    change.distance = distance;
    return change;
}

PlacementChange PlacementChange::turn(const VbVec3d& pivot, const VbVec3d& axis, double angle)
{
    PlacementChange change;
    change.kind = Kind::Turn;
    change.pivot = pivot;
    change.axis = axis;
    change.angle = angle;
    return change;
}

PlacementChange PlacementChange::scale(const VbVec3d& pivot, const std::array<VbVec3d, 3>& axes, const VbVec3d& factors)
{
    PlacementChange change;
    change.kind = Kind::Scale;
    change.pivot = pivot;
    change.axes = axes;
    change.factors = factors;
    return change;
}

Matrix4d PlacementChange::linear() const
{
    if (kind == Kind::Move)
        return {};
    if (kind == Kind::Turn)
        return turnMatrix(axis, angle);
    Matrix4d scale;
    if (factors[0] == factors[1] && factors[1] == factors[2]) {
        for (std::size_t i = 0; i < 3; ++i)
            scale[i][i] = factors[i];
        return scale;
    }
    Matrix4d fromAxes;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t column = 0; column < 3; ++column)
            fromAxes[i][column] = axes[i][column];
        scale[i][i] = factors[i];
    }
    return multiply(multiply(inverse(fromAxes).value_or(Matrix4d()), scale), fromAxes);
}

VbVec3d PlacementChange::applied(const VbVec3d& point) const
{
    if (kind == Kind::Move)
        return add(point, distance);
    return add(pivot, transformVector(subtract(point, pivot), linear()));
}

Matrix4d turnMatrix(const VbVec3d& axis, double angle)
{
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    Matrix4d matrix;
    for (std::size_t row = 0; row < 3; ++row) {
        VbVec3d base;
        base[row] = 1;
        const VbVec3d across = cross(axis, base);
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column]
                = base[column] * cosine + across[column] * sine + axis[column] * axis[row] * (1 - cosine);
    }
    return matrix;
}

} // namespace meridane
