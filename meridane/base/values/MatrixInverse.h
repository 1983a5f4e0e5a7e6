#pragma once

#include "meridane/base/values/VbMatrix.h"

#include <optional>

namespace meridane {

/// The inverse, computed in double precision. Nothing for a matrix that can't be inverted, or whose inverse has
/// elements that aren't finite.
[[nodiscard]] std::optional<VbMatrix> inverse(const VbMatrix& matrix) noexcept;

} // namespace meridane
