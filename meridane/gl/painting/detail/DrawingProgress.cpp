#include "meridane/gl/painting/detail/DrawingProgress.h"

#include <algorithm>

namespace meridane {

MeshRange DrawingProgress::take(const MeshRange& all) noexcept
{
    constexpr std::uint32_t whole = 6; // corners of whole primitives, whatever their kind
    const bool isIndexed = all.indexCount != 0;
    const std::uint32_t corners = isIndexed ? all.indexCount : all.vertexCount;
    const std::uint32_t left = corners - corner;
    MeshRange part = all;
    std::uint32_t& first = isIndexed ? part.firstIndex : part.firstVertex;
    std::uint32_t& count = isIndexed ? part.indexCount : part.vertexCount;
    first += corner;
    count = left;
    if (left > cornersLeft)
        count = std::min(left, std::max(static_cast<std::uint32_t>(cornersLeft) / whole * whole, whole));
    cornersLeft -= std::min<std::uint64_t>(cornersLeft, count);
    corner += count;
    if (corner == corners) {
        ++item;
        corner = 0;
    }
    return part;
}

} // namespace meridane
