#include "meridane/gl/geometry/MatrixMath.h"

#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace meridane {

namespace {

double wide(float value) noexcept
{
    return static_cast<double>(value);
}

VbVec3f narrow(double x, double y, double z) noexcept
{
    return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
}

std::array<VbVec3d, 3> rotationRows(const VbRotation& rotation) noexcept
{
    const std::array<float, 4> quaternion = rotation.getQuaternion();
    const double x = wide(quaternion[0]);
    const double y = wide(quaternion[1]);
    const double z = wide(quaternion[2]);
    const double w = wide(quaternion[3]);
    return {VbVec3d(1 - 2 * (y * y + z * z), 2 * (x * y + w * z), 2 * (x * z - w * y)),
        VbVec3d(2 * (x * y - w * z), 1 - 2 * (x * x + z * z), 2 * (y * z + w * x)),
        VbVec3d(2 * (x * z + w * y), 2 * (y * z - w * x), 1 - 2 * (x * x + y * y))};
}

// Scale and rotation about the center, then the translation.
Matrix4d localTransformOf(const NxTransform& node) noexcept
{
    const auto valueOf = [](const NxSFVec3f& field, const VbVec3f& fallback) -> VbVec3d {
        return field.isIgnored() ? fallback : field.getValue();
    };
    const VbVec3d center = valueOf(node.center, VbVec3f());
    const VbVec3d scale = valueOf(node.scaleFactor, VbVec3f(1, 1, 1));
    const std::array<VbVec3d, 3> rows
        = rotationRows(node.rotation.isIgnored() ? VbRotation() : node.rotation.getValue());
    Matrix4d matrix;
    // What the node moves the origin to: point * rows + moved.
    VbVec3d moved = add(center, valueOf(node.translation, VbVec3f()));
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] = scale[row] * rows[row][column];
        moved = subtract(moved, scaled(rows[row], center[row] * scale[row]));
    }
    std::copy_n(moved.getValue(), 3, matrix[3].begin());
    return matrix;
}

} // namespace

VbMatrix multiply(const VbMatrix& first, const VbMatrix& second) noexcept
{
    return narrowed(multiply(Matrix4d(first), Matrix4d(second)));
}

VbMatrix rotationMatrix(const VbRotation& rotation) noexcept
{
    const std::array<VbVec3d, 3> rows = rotationRows(rotation);
    VbMatrix matrix;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] = static_cast<float>(rows[row][column]);
    }
    return matrix;
}

Matrix4d translationMatrix(const VbVec3d& distance) noexcept
{
    Matrix4d matrix;
    std::copy_n(distance.getValue(), 3, matrix[3].begin());
    return matrix;
}

Matrix4d multiply(const Matrix4d& first, const Matrix4d& second) noexcept
{
    Matrix4d product;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            double sum = 0.0;
            for (std::size_t i = 0; i < 4; ++i)
                sum += first[row][i] * second[i][column];
            product[row][column] = sum;
        }
    }
    return product;
}

Matrix4d relativeTo(const VbVec3d& eye, const VbVec3d& origin, const Matrix4d& worldTransform) noexcept
{
    Matrix4d result = worldTransform;
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t axis = 0; axis < 3; ++axis)
            result[3][column] += origin[axis] * worldTransform[axis][column];
    }
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t axis = 0; axis < 3; ++axis)
            result[row][axis] -= eye[axis] * result[row][3];
    }
    return result;
}

VbVec3d transformPoint(const VbVec3d& point, const Matrix4d& matrix) noexcept
{
    std::array<double, 4> sums = matrix[3];
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t i = 0; i < 3; ++i)
            sums[column] += point[i] * matrix[i][column];
    }
    return {sums[0] / sums[3], sums[1] / sums[3], sums[2] / sums[3]};
}

std::array<float, 9> normalMatrixOf(const Matrix4d& matrix) noexcept
{
    const auto row = [&](std::size_t i) {
        i %= 3;
        return narrowed(VbVec3d(matrix[i][0], matrix[i][1], matrix[i][2]));
    };
    std::array<float, 9> result{};
    for (std::size_t i = 0; i < 3; ++i) {
        const VbVec3f cofactors = cross(row(i + 1), row(i + 2));
        std::copy_n(cofactors.getValue(), 3, result.begin() + static_cast<std::ptrdiff_t>(3 * i));
    }
    return result;
}

double greatestScale(const Matrix4d& matrix) noexcept
{
    double greatest = 0;
    for (std::size_t row = 0; row < 3; ++row)
        greatest = std::max(greatest, length(VbVec3d(matrix[row][0], matrix[row][1], matrix[row][2])));
    return greatest;
}

VbMatrix narrowed(const Matrix4d& matrix) noexcept
{
    VbMatrix result;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            result[row][column] = static_cast<float>(matrix[row][column]);
    }
    return result;
}

VbVec3f narrowed(const VbVec3d& vector) noexcept
{
    return narrow(vector[0], vector[1], vector[2]);
}

VbVec3f transformDirection(const VbVec3f& direction, const VbMatrix& matrix) noexcept
{
    return transformDirection(direction, Matrix4d(matrix));
}

VbVec3f transformDirection(const VbVec3f& direction, const Matrix4d& matrix) noexcept
{
    VbVec3d sums;
    for (std::size_t column = 0; column < 3; ++column) {
        for (std::size_t i = 0; i < 3; ++i)
            sums[column] += wide(direction[i]) * matrix[i][column];
    }
    return narrowed(sums);
}

VbVec3d transformVector(const VbVec3d& vector, const Matrix4d& matrix) noexcept
{
    VbVec3d sums;
    for (std::size_t column = 0; column < 3; ++column) {
        for (std::size_t i = 0; i < 3; ++i)
            sums[column] += vector[i] * matrix[i][column];
    }
    return sums;
}

double determinant(const Matrix4d& matrix) noexcept
{
    const auto row = [&](std::size_t i) { return VbVec3d(matrix[i][0], matrix[i][1], matrix[i][2]); };
    return dot(row(0), cross(row(1), row(2)));
}

std::optional<Matrix4d> inverse(const Matrix4d& matrix) noexcept
{
    const std::optional<MatrixRows> rows = inverse(MatrixRows{matrix[0], matrix[1], matrix[2], matrix[3]});
    if (!rows)
        return {};
    Matrix4d result;
    for (std::size_t row = 0; row < 4; ++row)
        result[row] = (*rows)[row];
    return result;
}

Matrix4d localTransformOf(const NxNode& node) noexcept
{
    if (const auto* transform = dynamic_cast<const NxTransform*>(&node))
        return localTransformOf(*transform);
    const auto* matrix = dynamic_cast<const NxMatrixTransform*>(&node);
    return matrix != nullptr && !matrix->matrix.isIgnored() ? matrix->matrix.getValue() : Matrix4d();
}

VbVec3f add(const VbVec3f& left, const VbVec3f& right) noexcept
{
    return {left[0] + right[0], left[1] + right[1], left[2] + right[2]};
}

VbVec3f subtract(const VbVec3f& left, const VbVec3f& right) noexcept
{
    return {left[0] - right[0], left[1] - right[1], left[2] - right[2]};
}

VbVec3f scaled(const VbVec3f& vector, double factor) noexcept
{
    return narrow(wide(vector[0]) * factor, wide(vector[1]) * factor, wide(vector[2]) * factor);
}

VbVec3f cross(const VbVec3f& left, const VbVec3f& right) noexcept
{
    const auto part
        = [&](std::size_t i, std::size_t j) { return wide(left[i]) * wide(right[j]) - wide(left[j]) * wide(right[i]); };
    return narrow(part(1, 2), part(2, 0), part(0, 1));
}

double dot(const VbVec3f& left, const VbVec3f& right) noexcept
{
    return wide(left[0]) * wide(right[0]) + wide(left[1]) * wide(right[1]) + wide(left[2]) * wide(right[2]);
}

double length(const VbVec3f& vector) noexcept
{
    return std::sqrt(dot(vector, vector));
}

VbVec3f normalized(const VbVec3f& vector, const VbVec3f& otherwise) noexcept
{
    const double size = length(vector);
    return size > 0.0 && std::isfinite(size) ? scaled(vector, 1.0 / size) : otherwise;
}

bool isFinite(const VbVec3f& vector) noexcept
{
    return std::isfinite(vector[0]) && std::isfinite(vector[1]) && std::isfinite(vector[2]);
}

VbVec3d add(const VbVec3d& left, const VbVec3d& right) noexcept
{
    return {left[0] + right[0], left[1] + right[1], left[2] + right[2]};
}

VbVec3d subtract(const VbVec3d& left, const VbVec3d& right) noexcept
{
    return {left[0] - right[0], left[1] - right[1], left[2] - right[2]};
}

VbVec3d scaled(const VbVec3d& vector, double factor) noexcept
{
    return {vector[0] * factor, vector[1] * factor, vector[2] * factor};
}

double dot(const VbVec3d& left, const VbVec3d& right) noexcept
{
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

double length(const VbVec3d& vector) noexcept
{
    return std::sqrt(dot(vector, vector));
}

VbVec3d cross(const VbVec3d& left, const VbVec3d& right) noexcept
{
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
        left[0] * right[1] - left[1] * right[0]};
}

VbVec3d normalized(const VbVec3d& vector, const VbVec3d& otherwise) noexcept
{
    const double size = length(vector);
    return size > 0 && std::isfinite(size) ? scaled(vector, 1 / size) : otherwise;
}

bool isFinite(const VbVec3d& vector) noexcept
{
    return isFinite(narrowed(vector));
}

} // namespace meridane
