#include "meridane/gl/geometry/MatrixParts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace meridane {

namespace {

using Vector = std::array<double, 3>;
using Rows = std::array<Vector, 3>; // points are rows and multiply from the left

double dot(const Vector& left, const Vector& right)
{
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

Vector cross(const Vector& left, const Vector& right)
{
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
        left[0] * right[1] - left[1] * right[0]};
}

double length(const Vector& vector)
{
    return std::hypot(vector[0], vector[1], vector[2]);
}

Vector scaled(const Vector& vector, double factor)
{
    return {vector[0] * factor, vector[1] * factor, vector[2] * factor};
}

Vector minus(const Vector& left, const Vector& right)
{
    return {left[0] - right[0], left[1] - right[1], left[2] - right[2]};
}

Rows rowsOf(const std::array<double, 4>& quaternion)
{
    const auto [x, y, z, w] = quaternion;
    return {Vector{1 - 2 * (y * y + z * z), 2 * (x * y + w * z), 2 * (x * z - w * y)},
        Vector{2 * (x * y - w * z), 1 - 2 * (x * x + z * z), 2 * (y * z + w * x)},
        Vector{2 * (x * z + w * y), 2 * (y * z - w * x), 1 - 2 * (x * x + y * y)}};
}

Rows rowsOf(const EulerDegrees& degrees)
{
    const Vector radians = scaled(degrees, 1 / degreesOfRadian);
    const double cx = std::cos(radians[0]);
    const double sx = std::sin(radians[0]);
    const double cy = std::cos(radians[1]);
    const double sy = std::sin(radians[1]);
    const double cz = std::cos(radians[2]);
    const double sz = std::sin(radians[2]);
    return {Vector{cy * cz, cy * sz, -sy}, Vector{sx * sy * cz - cx * sz, sx * sy * sz + cx * cz, sx * cy},
        Vector{cx * sy * cz + sx * sz, cx * sy * sz - sx * cz, cx * cy}};
}

// No -0, which would surprise in a line.
EulerDegrees inDegrees(double x, double y, double z)
{
    return {x * degreesOfRadian + 0.0, y * degreesOfRadian + 0.0, z * degreesOfRadian + 0.0};
}

EulerDegrees eulerOf(const Rows& rows)
{
    const double cosine = std::hypot(rows[0][0], rows[0][1]);
    const double y = std::atan2(-rows[0][2], cosine);
    // Where y is a right angle, x and z turn about the same axis; all of it is given to x.
    constexpr double rightAngle = 1e-6;
    if (cosine < rightAngle)
        return inDegrees(std::atan2(-rows[2][1], rows[1][1]), y, 0);
    return inDegrees(std::atan2(rows[1][2], rows[2][2]), y, std::atan2(rows[0][1], rows[0][0]));
}

std::array<double, 4> quaternionOf(const VbRotation& rotation)
{
    const VbVec3f& given = rotation.getAxis();
    const Vector axis{static_cast<double>(given[0]), static_cast<double>(given[1]), static_cast<double>(given[2])};
    const double size = length(axis);
    if (!(size > 0))
        return {0, 0, 0, 1};
    const double half = static_cast<double>(rotation.getAngle()) / 2;
    const double factor = std::sin(half) / size;
    return {axis[0] * factor, axis[1] * factor, axis[2] * factor, std::cos(half)};
}

// An element of the parts' matrix, whose numbers are floats, may differ by so much.
bool isNear(double left, double right, double size)
{
    constexpr double precision = 1e-6;
    return std::abs(left - right) <= precision * std::max(size, std::abs(left));
}

bool hasFiniteElements(const VbMatrix& matrix)
{
    for (std::size_t row = 0; row < 4; ++row) {
        if (!std::all_of(matrix[row].begin(), matrix[row].end(), [](float element) { return std::isfinite(element); }))
            return false;
    }
    return true;
}

// A direction at right angles to the two others; any one where these don't give it.
Vector directionBeside(const Vector& first, const Vector& second)
{
    const Vector beside = cross(first, second);
    const double size = length(beside);
    return size > 0 ? scaled(beside, 1 / size) : Vector{};
}

Vector anyBeside(const Vector& vector)
{
    if (!(length(vector) > 0))
        return {1, 0, 0};
    const bool isAlongX = std::abs(vector[0]) > 0.5 * length(vector);
    return directionBeside(vector, isAlongX ? Vector{0, 1, 0} : Vector{1, 0, 0});
}

// Makes the rows directions at right angles, each as near to the given one as those before it leave it. Their scales
// are the lengths along them.
Rows rightAngled(const Rows& rows, Vector& scale)
{
    Rows directions{};
    scale = {length(rows[0]), 0, 0};
    if (scale[0] > 0)
        directions[0] = scaled(rows[0], 1 / scale[0]);
    else if (length(cross(rows[1], rows[2])) > 0)
        directions[0] = directionBeside(rows[1], rows[2]);
    else
        directions[0] = anyBeside(length(rows[1]) > 0 ? rows[1] : rows[2]);

    const Vector second = minus(rows[1], scaled(directions[0], dot(rows[1], directions[0])));
    constexpr double precision = 1e-9; // what is left of a row in the first direction is rounding
    if (length(second) > precision * length(rows[1]))
        scale[1] = length(second);
    const Vector third = minus(rows[2], scaled(directions[0], dot(rows[2], directions[0])));
    if (scale[1] > 0)
        directions[1] = scaled(second, 1 / scale[1]);
    else
        directions[1] = length(third) > 0 ? directionBeside(third, directions[0]) : anyBeside(directions[0]);
    directions[2] = cross(directions[0], directions[1]);
    scale[2] = dot(rows[2], directions[2]);
    return directions;
}

} // namespace

EulerDegrees toEuler(const VbRotation& rotation)
{
    return eulerOf(rowsOf(quaternionOf(rotation)));
}

VbRotation fromEuler(const EulerDegrees& degrees)
{
    const Vector half = scaled(degrees, 0.5 / degreesOfRadian);
    const double cx = std::cos(half[0]);
    const double sx = std::sin(half[0]);
    const double cy = std::cos(half[1]);
    const double sy = std::sin(half[1]);
    const double cz = std::cos(half[2]);
    const double sz = std::sin(half[2]);
    std::array<double, 4> quaternion{sx * cy * cz - cx * sy * sz, cx * sy * cz + sx * cy * sz,
        cx * cy * sz - sx * sy * cz, cx * cy * cz + sx * sy * sz};
    if (quaternion[3] < 0) {
        for (double& part : quaternion)
            part = -part;
    }
    const Vector axis{quaternion[0], quaternion[1], quaternion[2]};
    const double sine = length(axis);
    if (!(sine > 0))
        return {};
    const Vector direction = scaled(axis, 1 / sine);
    return {
        VbVec3f(static_cast<float>(direction[0]), static_cast<float>(direction[1]), static_cast<float>(direction[2])),
        static_cast<float>(2 * std::atan2(sine, quaternion[3]))};
}

bool isNormal(const VbRotation& rotation)
{
    const VbVec3f& axis = rotation.getAxis();
    const double size
        = length(Vector{static_cast<double>(axis[0]), static_cast<double>(axis[1]), static_cast<double>(axis[2])});
    return !(size > 0) || !std::isfinite(size) || std::abs(size - 1) < 3e-7;
}

VbRotation normalised(const VbRotation& rotation)
{
    if (isNormal(rotation))
        return rotation;
    const VbVec3f& given = rotation.getAxis();
    const Vector axis{static_cast<double>(given[0]), static_cast<double>(given[1]), static_cast<double>(given[2])};
    const Vector unit = scaled(axis, 1 / length(axis));
    return {VbVec3f(static_cast<float>(unit[0]), static_cast<float>(unit[1]), static_cast<float>(unit[2])),
        rotation.getAngle()};
}

MatrixDecomposition decomposed(const VbMatrix& matrix)
{
    MatrixDecomposition result;
    if (!hasFiniteElements(matrix)) {
        result.rest = MatrixRest::NotFinite;
        return result;
    }
    Rows rows{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            rows[row][column] = static_cast<double>(matrix[row][column]);
        result.parts.translation[row] = static_cast<double>(matrix[3][row]);
    }
    Vector& scale = result.parts.scale;
    Rows directions = rightAngled(rows, scale);
    // A mirror is shown along x. The third direction has been made from the others, so only its scale is negative.
    if (scale[2] < 0) {
        scale[0] = -scale[0];
        scale[2] = -scale[2];
        directions[0] = scaled(directions[0], -1);
        directions[2] = scaled(directions[2], -1);
    }
    result.parts.rotation = eulerOf(directions);
    const std::array<float, 4> lastColumn{matrix[0][3], matrix[1][3], matrix[2][3], matrix[3][3]};
    if (lastColumn != std::array<float, 4>{0, 0, 0, 1}) {
        result.rest = MatrixRest::Projection;
        return result;
    }
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const double element = scale[row] * directions[row][column];
            if (!isNear(element, rows[row][column], length(rows[row])))
                result.rest = MatrixRest::Shear;
        }
    }
    return result;
}

VbMatrix composed(const MatrixParts& parts)
{
    const Rows rows = rowsOf(parts.rotation);
    VbMatrix matrix;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] = static_cast<float>(parts.scale[row] * rows[row][column]);
        matrix[3][row] = static_cast<float>(parts.translation[row]);
    }
    return matrix;
}

} // namespace meridane
