#include "orvane/app/structure/detail/TransformValues.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/MatrixParts.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

using meridane::Matrix4d;

/// Relative to the size of what is compared.
constexpr double transformPrecision = 2e-6;

double sizeOf(const std::array<double, 4>& row)
{
    return std::max({std::abs(row[0]), std::abs(row[1]), std::abs(row[2])});
}

bool isNearRow(const std::array<double, 4>& left, const std::array<double, 4>& right, double size)
{
    for (std::size_t column = 0; column < 3; ++column) {
        if (!(std::abs(left[column] - right[column]) <= transformPrecision * size))
            return false;
    }
    return true;
}

bool isNearLinear(const Matrix4d& left, const Matrix4d& right)
{
    for (std::size_t row = 0; row < 3; ++row) {
        if (!isNearRow(left[row], right[row], std::max(sizeOf(left[row]), sizeOf(right[row]))))
            return false;
    }
    return true;
}

template <typename Field, typename Value>
void setUsed(Field& field, const Value& value)
{
    field.setValue(value);
    field.setIgnored(0);
}

VbVec3f pointOf(const NxSFVec3f& field, const Matrix4d& transform)
{
    return meridane::narrowed(meridane::transformPoint(VbVec3d(meridane::effectiveField(field).getValue()), transform));
}

void turnDirection(NxSFVec3f& field, const Matrix4d& transform)
{
    const VbVec3f& before = meridane::effectiveField(field).getValue();
    const VbVec3f after = meridane::transformDirection(before, transform);
    // Of any length: it keeps the one it has.
    const double size = meridane::length(after);
    setUsed(field, size > 0 ? meridane::scaled(after, meridane::length(before) / size) : after);
}

/// Gives a transform the translation with which it moves the origin to where the matrix does.
void setOrigin(NxTransform& node, const Matrix4d& wanted)
{
    const Matrix4d present = meridane::localTransformOf(node);
    VbVec3d translation(meridane::effectiveField(node.translation).getValue());
    for (std::size_t i = 0; i < 3; ++i)
        translation[i] += wanted[3][i] - present[3][i];
    setUsed(node.translation, meridane::narrowed(translation));
}

bool applyToNode(NxTransform& node, const Matrix4d& transform)
{
    const Matrix4d wanted = meridane::multiply(meridane::localTransformOf(node), transform);
    if (!isNearLinear(meridane::localTransformOf(node), wanted)) {
        const meridane::MatrixDecomposition parts = meridane::decomposed(meridane::narrowed(wanted));
        if (parts.rest == meridane::MatrixRest::NotFinite)
            return false;
        const auto& scale = parts.parts.scale;
        const VbVec3f factors(static_cast<float>(scale[0]), static_cast<float>(scale[1]), static_cast<float>(scale[2]));
        setUsed(node.rotation, meridane::fromEuler(parts.parts.rotation));
        setUsed(node.scaleFactor, factors);
    }
    setOrigin(node, wanted);
    return isNearLinear(meridane::localTransformOf(node), wanted);
}

/// Cameras don't scale.
bool applyToNode(NxCamera& node, const Matrix4d& transform)
{
    const Matrix4d turned = meridane::multiply(
        Matrix4d(meridane::rotationMatrix(meridane::effectiveField(node.orientation).getValue())), transform);
    const meridane::MatrixDecomposition parts = meridane::decomposed(meridane::narrowed(turned));
    const auto isOne = [](double factor) { return std::abs(factor - 1) <= transformPrecision; };
    if (parts.rest == meridane::MatrixRest::NotFinite || !std::ranges::all_of(parts.parts.scale, isOne))
        return false;
    if (!isNearLinear(transform, Matrix4d()))
        setUsed(node.orientation, meridane::fromEuler(parts.parts.rotation));
    setUsed(node.position, pointOf(node.position, transform));
    return true;
}

} // namespace

namespace orvane {

std::optional<Matrix4d> inverseOf(const Matrix4d& matrix)
{
    // The rows of the inverse are products of the rows, divided by the determinant.
    const auto minor = [&](std::size_t row, std::size_t column) {
        const std::size_t r1 = (row + 1) % 3;
        const std::size_t r2 = (row + 2) % 3;
        const std::size_t c1 = (column + 1) % 3;
        const std::size_t c2 = (column + 2) % 3;
        return matrix[r1][c1] * matrix[r2][c2] - matrix[r1][c2] * matrix[r2][c1];
    };
    const double determinant = matrix[0][0] * minor(0, 0) + matrix[0][1] * minor(0, 1) + matrix[0][2] * minor(0, 2);
    const double size = sizeOf(matrix[0]) * sizeOf(matrix[1]) * sizeOf(matrix[2]);
    constexpr double least = 1e-12; // a matrix with less volume is flat but for rounding
    if (!(std::abs(determinant) > least * size) || !std::isfinite(determinant))
        return std::nullopt;
    Matrix4d inverse;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            inverse[row][column] = minor(column, row) / determinant;
    }
    for (std::size_t column = 0; column < 3; ++column) {
        inverse[3][column] = 0;
        for (std::size_t row = 0; row < 3; ++row)
            inverse[3][column] -= matrix[3][row] * inverse[row][column];
    }
    return isAffine(inverse) ? std::optional(inverse) : std::nullopt;
}

bool isAffine(const Matrix4d& matrix)
{
    constexpr std::array<double, 4> lastColumn{0, 0, 0, 1};
    for (std::size_t row = 0; row < 4; ++row) {
        const auto isFinite = [](double element) { return std::isfinite(static_cast<float>(element)); };
        if (!std::ranges::all_of(matrix[row], isFinite) || matrix[row][3] != lastColumn[row])
            return false;
    }
    return true;
}

bool isIdentity(const Matrix4d& matrix, double size)
{
    constexpr double nothing = 1e-7;
    return isNearLinear(matrix, Matrix4d()) && distanceOf(matrix) <= nothing * size;
}

double distanceOf(const Matrix4d& matrix)
{
    return sizeOf(matrix[3]);
}

bool applyTransform(NxNode& node, const Matrix4d& transform)
{
    if (auto* const group = dynamic_cast<NxTransform*>(&node))
        return applyToNode(*group, transform);
    if (auto* const camera = dynamic_cast<NxCamera*>(&node))
        return applyToNode(*camera, transform);
    if (auto* const matrix = dynamic_cast<NxMatrixTransform*>(&node)) {
        setUsed(matrix->matrix, meridane::narrowed(meridane::multiply(meridane::localTransformOf(node), transform)));
        return true;
    }
    if (auto* const point = dynamic_cast<NxPointLight*>(&node)) {
        setUsed(point->location, pointOf(point->location, transform));
        return true;
    }
    if (auto* const spot = dynamic_cast<NxSpotLight*>(&node)) {
        setUsed(spot->location, pointOf(spot->location, transform));
        turnDirection(spot->direction, transform);
        return true;
    }
    if (auto* const directional = dynamic_cast<NxDirectionalLight*>(&node)) {
        turnDirection(directional->direction, transform);
        return true;
    }
    return false;
}

} // namespace orvane
