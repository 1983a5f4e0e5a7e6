#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

#include <optional>

class NxNode;

/// What drawing and picking compute with matrices and vectors. As everywhere, points are rows and multiply from the
/// left. Sums are made in double precision, and places in a scene are kept in it; numbers that aren't finite give such
/// numbers and nothing worse.
namespace meridane {

/// The matrix that does first what `first` does, then what `second` does.
[[nodiscard]] VbMatrix multiply(const VbMatrix& first, const VbMatrix& second) noexcept;
/// Nothing for a matrix that can't be inverted, or whose inverse has elements that aren't finite.
[[nodiscard]] std::optional<VbMatrix> inverse(const VbMatrix& matrix) noexcept;
[[nodiscard]] VbMatrix translationMatrix(const VbVec3f& distance) noexcept;
[[nodiscard]] VbMatrix scaleMatrix(const VbVec3f& factors) noexcept;
[[nodiscard]] VbMatrix rotationMatrix(const VbRotation& rotation) noexcept;

/// The place of a point, divided by its fourth coordinate where the matrix gives it another one than 1.
[[nodiscard]] VbVec3f transformPoint(const VbVec3f& point, const VbMatrix& matrix) noexcept;
/// A direction or distance: not moved by the matrix.
[[nodiscard]] VbVec3f transformDirection(const VbVec3f& direction, const VbMatrix& matrix) noexcept;

[[nodiscard]] Matrix4d multiply(const Matrix4d& first, const Matrix4d& second) noexcept;
[[nodiscard]] Matrix4d translationMatrix(const VbVec3d& distance) noexcept;
[[nodiscard]] VbVec3d transformPoint(const VbVec3d& point, const Matrix4d& matrix) noexcept;
[[nodiscard]] VbVec3f transformDirection(const VbVec3f& direction, const Matrix4d& matrix) noexcept;
/// What floats keep of a matrix or a vector.
[[nodiscard]] VbMatrix narrowed(const Matrix4d& matrix) noexcept;
[[nodiscard]] VbVec3f narrowed(const VbVec3d& vector) noexcept;

/// How a node places its children in the group above it: the identity for one that doesn't. An ignored field counts
/// with its default.
[[nodiscard]] Matrix4d localTransformOf(const NxNode& node) noexcept;

[[nodiscard]] VbVec3f add(const VbVec3f& left, const VbVec3f& right) noexcept;
[[nodiscard]] VbVec3f subtract(const VbVec3f& left, const VbVec3f& right) noexcept;
[[nodiscard]] VbVec3f scaled(const VbVec3f& vector, double factor) noexcept;
[[nodiscard]] VbVec3f cross(const VbVec3f& left, const VbVec3f& right) noexcept;
[[nodiscard]] double dot(const VbVec3f& left, const VbVec3f& right) noexcept;
[[nodiscard]] double length(const VbVec3f& vector) noexcept;
/// The vector of length 1, or `otherwise` for one that has no direction or isn't finite.
[[nodiscard]] VbVec3f normalized(const VbVec3f& vector, const VbVec3f& otherwise) noexcept;
[[nodiscard]] bool isFinite(const VbVec3f& vector) noexcept;

[[nodiscard]] VbVec3d add(const VbVec3d& left, const VbVec3d& right) noexcept;
[[nodiscard]] VbVec3d subtract(const VbVec3d& left, const VbVec3d& right) noexcept;
[[nodiscard]] VbVec3d scaled(const VbVec3d& vector, double factor) noexcept;
[[nodiscard]] double dot(const VbVec3d& left, const VbVec3d& right) noexcept;
[[nodiscard]] double length(const VbVec3d& vector) noexcept;
/// Whether floats reach the vector.
[[nodiscard]] bool isFinite(const VbVec3d& vector) noexcept;

} // namespace meridane
