#pragma once

#include "meridane/gl/places/detail/MeshRecord.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace meridane {

/// How far the drawing of a list of items is, and how much may be drawn at once.
struct DrawingProgress {
    std::uint64_t cornersLeft = std::numeric_limits<std::uint64_t>::max();
    std::size_t item = 0;
    std::uint32_t corner = 0; ///< of that item

    /// The part of the present item that is drawn next; `all` is the whole of it. Goes on behind that part.
    [[nodiscard]] MeshRange take(const MeshRange& all) noexcept;
};

} // namespace meridane
