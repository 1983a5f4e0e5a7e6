#pragma once

#include "meridane/gl/geometry/Matrix4d.h"

#include <optional>

class NxNode;

namespace orvane {

/// The inverse of a matrix whose last column is 0, 0, 0, 1; nothing if there is none.
[[nodiscard]] std::optional<meridane::Matrix4d> inverseOf(const meridane::Matrix4d& matrix);
/// Whether all elements are finite as floats, and the last column is 0, 0, 0, 1.
[[nodiscard]] bool isAffine(const meridane::Matrix4d& matrix);
/// Whether a matrix changes nothing within the precision of floats, where distances are of about that size.
[[nodiscard]] bool isIdentity(const meridane::Matrix4d& matrix, double size);
/// The greatest distance along an axis by which a matrix moves.
[[nodiscard]] double distanceOf(const meridane::Matrix4d& matrix);

/// Changes the values of a transform, a camera or a light so that a transform applies after what they do. Fields that
/// needn't change stay as they are. Returns false for a node of another class, and if no values do that, as for a
/// shear; then some values may have changed.
[[nodiscard]] bool applyTransform(NxNode& node, const meridane::Matrix4d& transform);

} // namespace orvane
