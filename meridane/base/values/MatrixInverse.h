#pragma once

#include "meridane/base/values/VbMatrix.h"

#include <array>
#include <optional>

namespace meridane {

/// A matrix in double precision, by rows.
using MatrixRows = std::array<std::array<double, 4>, 4>;

/// The inverse, or nothing for a matrix that can't be inverted, or whose inverse has elements that aren't finite.
[[nodiscard]] std::optional<MatrixRows> inverse(const MatrixRows& matrix) noexcept;

/// The inverse, computed in double precision. Nothing for a matrix that can't be inverted, or whose inverse has
/// elements that aren't finite.
[[nodiscard]] std::optional<VbMatrix> inverse(const VbMatrix& matrix) noexcept;

} // namespace meridane
