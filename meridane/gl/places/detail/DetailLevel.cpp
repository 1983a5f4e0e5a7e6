#include "meridane/gl/places/detail/DetailLevel.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/detail/PictureFrame.h"

#include <algorithm>
#include <bit>

namespace meridane {
namespace {

constexpr std::uint32_t minCells = 4;
constexpr std::uint32_t maxCells = 1024;
/// Meshes with fewer vertices aren't simplified.
constexpr std::uint32_t minVertices = 64;

float pixelsOf(const NxBounds& bounds, const PictureFrame& frame)
{
    const VbVec3f size = bounds.size();
    const float longest = std::max({size[0], size[1], size[2]});
    if (!(frame.eye[3] > 0)) // the same size at any distance
        return longest * frame.pixelsPerUnit;
    const auto distance = static_cast<float>(length(bounds.center())) - longest;
    return distance > 0 ? longest * frame.pixelsPerUnit / distance : static_cast<float>(maxCells);
}

/// How many pixels a length of 1 has at the place of the box that is nearest to the eye.
double greatestPixelsPerUnit(const NxBounds& bounds, const PictureFrame& frame)
{
    if (!(frame.eye[3] > 0))
        return static_cast<double>(frame.pixelsPerUnit);
    VbVec3f nearest;
    for (std::size_t axis = 0; axis < 3; ++axis)
        nearest[axis] = std::clamp(0.0F, bounds.min[axis], bounds.max[axis]);
    return static_cast<double>(frame.pixelsPerUnit) / std::max(length(nearest), 1e-30);
}

float cellsFor(const ComplexityValues& complexity, const NxBounds& bounds, const PictureFrame& frame)
{
    constexpr float full = 0.5F;
    if (complexity.type == NxComplexity::SCREEN_SPACE)
        return pixelsOf(bounds, frame) * complexity.value;
    return complexity.value >= full ? static_cast<float>(maxCells)
                                    : static_cast<float>(minCells) + complexity.value / full * 124;
}

} // namespace

std::uint32_t detailCells(
    const ComplexityValues& complexity, const MeshShape& shape, const NxBounds& bounds, const PictureFrame& frame)
{
    const float wanted = cellsFor(complexity, bounds, frame);
    if (shape.vertexCount < minVertices || !(wanted < static_cast<float>(maxCells)))
        return 0;
    const std::uint32_t cells = std::bit_floor(std::max(static_cast<std::uint32_t>(wanted), minCells));
    // A surface occupies about 2 * cells^2 of them.
    return 2 * cells * cells < shape.vertexCount ? cells : 0;
}

MeshDetail detailWithin(float pixels, const MeshRecord& mesh, const Matrix4d& worldTransform, const NxBounds& bounds,
    const PictureFrame& frame)
{
    constexpr std::uint32_t veryMany = 50'000;
    if (mesh.reduction == nullptr || mesh.areLevelsStale || mesh.reduction->levels.empty() || bounds.isEmpty())
        return fullDetail;
    const std::vector<ReducedMesh>& levels = mesh.reduction->levels;
    const double factor = greatestScale(worldTransform) * greatestPixelsPerUnit(bounds, frame);
    for (std::size_t level = levels.size(); level-- > 0;) {
        if (static_cast<double>(levels[level].error) * factor <= static_cast<double>(pixels))
            return reducedDetail(level);
    }
    return mesh.shape.vertexCount > veryMany ? reducedDetail(0) : fullDetail;
}

} // namespace meridane
