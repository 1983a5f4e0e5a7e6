#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"

#include <array>
#include <numbers>

namespace meridane {

/// The number of degrees in a radian.
inline constexpr double degreesOfRadian = 180 / std::numbers::pi;

/// A turn about the fixed axes x, then y, then z, each in degrees.
using EulerDegrees = std::array<double, 3>;

/// The angles of a rotation, whose axis may have any length.
[[nodiscard]] EulerDegrees toEuler(const VbRotation& rotation);
/// The axis has length 1; the angle is from 0 to pi.
[[nodiscard]] VbRotation fromEuler(const EulerDegrees& degrees);
/// Whether the axis has length 1 within the precision of its numbers. True for an axis that can't get it: of no
/// length, or not finite.
[[nodiscard]] bool isNormal(const VbRotation& rotation);
/// The same rotation with an axis of length 1.
[[nodiscard]] VbRotation normalised(const VbRotation& rotation);

/// A matrix as a scale along the axes, then a rotation, then a translation.
struct MatrixParts {
    std::array<double, 3> translation{}; ///< applied last
    EulerDegrees rotation{}; ///< applied after the scale
    std::array<double, 3> scale{1, 1, 1}; ///< along x, y and z, applied first
};

/// What a matrix holds beside these parts.
enum class MatrixRest {
    None, ///< the parts give the matrix within the precision of its numbers
    Shear, ///< its axes aren't at right angles
    Projection, ///< its last column isn't 0, 0, 0, 1
    NotFinite, ///< an element is infinite or no number
};

/// The parts of a matrix, and what is left of it.
struct MatrixDecomposition {
    MatrixParts parts; ///< of the nearest matrix without a rest
    MatrixRest rest = MatrixRest::None; ///< what the parts don't give
};

/// The parts of a matrix; a mirrored one has a negative scale along x. If there is a rest, the parts are those of the
/// nearest matrix without it.
[[nodiscard]] MatrixDecomposition decomposed(const VbMatrix& matrix);
/// The matrix of these parts.
[[nodiscard]] VbMatrix composed(const MatrixParts& parts);

} // namespace meridane
