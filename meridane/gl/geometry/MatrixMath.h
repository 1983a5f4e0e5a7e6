#pragma once

#include "meridane/base/values/MatrixInverse.h"
#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

#include <array>
#include <optional>

class NxNode;

/// Computations with matrices and vectors for drawing and picking. Points are rows and multiply from the left, as
/// everywhere in the toolkit. Sums are computed in double precision. Numbers that aren't finite give results that
/// aren't finite; there are no other errors.
namespace meridane {

/// The matrix that applies `first`, then `second`.
[[nodiscard]] VbMatrix multiply(const VbMatrix& first, const VbMatrix& second) noexcept;
/// The matrix of a rotation; the identity for an axis of no length.
[[nodiscard]] VbMatrix rotationMatrix(const VbRotation& rotation) noexcept;

/// Transforms a direction or distance, to which the translation doesn't apply.
[[nodiscard]] VbVec3f transformDirection(const VbVec3f& direction, const VbMatrix& matrix) noexcept;

/// The matrix that applies `first`, then `second`, in double precision.
[[nodiscard]] Matrix4d multiply(const Matrix4d& first, const Matrix4d& second) noexcept;
/// The matrix that moves points by `distance`.
[[nodiscard]] Matrix4d translationMatrix(const VbVec3d& distance) noexcept;
/// The matrix that takes points relative to `origin` to scene positions relative to the eye.
[[nodiscard]] Matrix4d relativeTo(const VbVec3d& eye, const VbVec3d& origin, const Matrix4d& worldTransform) noexcept;
/// The transformed point, divided by its fourth coordinate.
[[nodiscard]] VbVec3d transformPoint(const VbVec3d& point, const Matrix4d& matrix) noexcept;
/// Transforms a direction or distance, to which the translation doesn't apply, and rounds it to floats.
[[nodiscard]] VbVec3f transformDirection(const VbVec3f& direction, const Matrix4d& matrix) noexcept;
/// Transforms a direction or distance, to which the translation doesn't apply, in double precision.
[[nodiscard]] VbVec3d transformVector(const VbVec3d& vector, const Matrix4d& matrix) noexcept;
/// The inverse, or nothing for a matrix that can't be inverted.
[[nodiscard]] std::optional<Matrix4d> inverse(const Matrix4d& matrix) noexcept;
/// The determinant of the upper left 3 by 3 part: negative if the matrix mirrors.
[[nodiscard]] double determinant(const Matrix4d& matrix) noexcept;
/// The matrix that transforms normals, as three rows. Their direction is right for any scale, and finite for singular
/// matrices.
[[nodiscard]] std::array<float, 9> normalMatrixOf(const Matrix4d& matrix) noexcept;
/// How many times longer a matrix makes what it transforms at most, along one of the axes.
[[nodiscard]] double greatestScale(const Matrix4d& matrix) noexcept;
/// The matrix or vector rounded to floats.
[[nodiscard]] VbMatrix narrowed(const Matrix4d& matrix) noexcept;
/// The vector rounded to floats.
[[nodiscard]] VbVec3f narrowed(const VbVec3d& vector) noexcept;

/// The local transform of a node, which takes its children to the group above it: the identity for a node that doesn't
/// transform. The default of an ignored field applies.
[[nodiscard]] Matrix4d localTransformOf(const NxNode& node) noexcept;

/// The sum, component by component.
[[nodiscard]] VbVec3f add(const VbVec3f& left, const VbVec3f& right) noexcept;
/// `left` minus `right`, component by component.
[[nodiscard]] VbVec3f subtract(const VbVec3f& left, const VbVec3f& right) noexcept;
/// The vector times a factor.
[[nodiscard]] VbVec3f scaled(const VbVec3f& vector, double factor) noexcept;
/// The cross product, at right angles to both vectors.
[[nodiscard]] VbVec3f cross(const VbVec3f& left, const VbVec3f& right) noexcept;
/// The dot product.
[[nodiscard]] double dot(const VbVec3f& left, const VbVec3f& right) noexcept;
/// The Euclidean length.
[[nodiscard]] double length(const VbVec3f& vector) noexcept;
/// The vector of length 1, or `otherwise` for one that has no direction or isn't finite.
[[nodiscard]] VbVec3f normalized(const VbVec3f& vector, const VbVec3f& otherwise) noexcept;
/// Whether no component is infinite or NaN.
[[nodiscard]] bool isFinite(const VbVec3f& vector) noexcept;

/// The sum, component by component.
[[nodiscard]] VbVec3d add(const VbVec3d& left, const VbVec3d& right) noexcept;
/// `left` minus `right`, component by component.
[[nodiscard]] VbVec3d subtract(const VbVec3d& left, const VbVec3d& right) noexcept;
/// The vector times a factor.
[[nodiscard]] VbVec3d scaled(const VbVec3d& vector, double factor) noexcept;
/// The dot product.
[[nodiscard]] double dot(const VbVec3d& left, const VbVec3d& right) noexcept;
/// The Euclidean length.
[[nodiscard]] double length(const VbVec3d& vector) noexcept;
/// The cross product, at right angles to both vectors.
[[nodiscard]] VbVec3d cross(const VbVec3d& left, const VbVec3d& right) noexcept;
/// The vector of length 1, or `otherwise` for one that has no direction or isn't finite.
[[nodiscard]] VbVec3d normalized(const VbVec3d& vector, const VbVec3d& otherwise) noexcept;
/// Whether all components are finite when rounded to floats.
[[nodiscard]] bool isFinite(const VbVec3d& vector) noexcept;

} // namespace meridane
