#pragma once

#include "meridane/base/values/VbVec.h"

#include <cstdint>
#include <span>

namespace meridane {

/// Which sides of a surface can't be seen from outside of it.
enum class HiddenSides {
    None, ///< both can, or it isn't known
    Back, ///< closed surfaces whose triangles run counterclockwise, as seen from outside
    Front, ///< closed surfaces whose triangles run clockwise
};

/// Finds out whether triangles are closed surfaces that all turn the same side outwards: every edge must be passed in
/// one direction as often as in the other. Corners with the same `places` are at the same place.
[[nodiscard]] HiddenSides hiddenSidesOf(
    std::span<const VbVec3f> positions, std::span<const std::uint32_t> places, std::span<const std::uint32_t> indices);

} // namespace meridane
