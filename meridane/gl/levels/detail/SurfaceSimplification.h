#pragma once

#include "meridane/base/values/VbVec.h"

#include <atomic>
#include <cstdint>
#include <span>
#include <vector>

namespace meridane {

/// The triangles of a surface with fewer of them, where that moves it by no more than `error`. The vertices stay what
/// they are. Large surfaces are simplified in parts first, so that it takes little memory beside the surface, and ends
/// soon when `isCancelled` is set; the result isn't complete then.
[[nodiscard]] std::vector<std::uint32_t> simplifiedTriangles(std::span<const VbVec3f> positions,
    std::vector<std::uint32_t> indices, float error, const std::atomic<bool>& isCancelled);

} // namespace meridane
