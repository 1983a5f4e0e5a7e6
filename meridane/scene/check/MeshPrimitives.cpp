#include "meridane/scene/check/MeshPrimitives.h"

#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace meridane {

static_assert(cornersOf(NxMesh::TRIANGLES) == 3 && cornersOf(NxMesh::LINES) == 2 && cornersOf(NxMesh::POINTS) == 1);

int primitiveOf(const NxMesh& mesh)
{
    const int primitive = effectiveField(mesh.primitive).getValue();
    return primitive == NxMesh::LINES || primitive == NxMesh::POINTS ? primitive : int{NxMesh::TRIANGLES};
}

bool isUsable(const VbVec3f& position) noexcept
{
    // One test instead of three: infinity and NaN times 0 are NaN.
    return std::isfinite(position[0] * 0 + position[1] * 0 + position[2] * 0);
}

bool hasNoArea(const VbVec3f& first, const VbVec3f& second, const VbVec3f& third) noexcept
{
    std::array<double, 3> left{};
    std::array<double, 3> right{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        left[axis] = static_cast<double>(second[axis]) - static_cast<double>(first[axis]);
        right[axis] = static_cast<double>(third[axis]) - static_cast<double>(first[axis]);
    }
    return left[1] * right[2] == left[2] * right[1] && left[2] * right[0] == left[0] * right[2]
        && left[0] * right[1] == left[1] * right[0];
}

bool hasUnitLength(const VbVec3f& normal) noexcept
{
    constexpr double least = 0.99 * 0.99;
    constexpr double most = 1.01 * 1.01;
    const VbVec3d wide(normal);
    const double square = wide[0] * wide[0] + wide[1] * wide[1] + wide[2] * wide[2];
    return square >= least && square <= most;
}

std::size_t countOutOfRange(std::span<const int> indices, std::size_t positions) noexcept
{
    return static_cast<std::size_t>(std::count_if(indices.begin(), indices.end(),
        [positions](int index) { return index < 0 || static_cast<std::size_t>(index) >= positions; }));
}

std::vector<std::uint32_t> usableIndices(const NxMesh& mesh)
{
    const std::span<const VbVec3f> positions = effectiveField(mesh.positions).getValues();
    const std::span<const int> indices = effectiveField(mesh.indices).getValues();
    const std::size_t corners = cornersOf(primitiveOf(mesh));
    const std::size_t count = indices.empty() ? positions.size() : indices.size();
    std::vector<std::uint32_t> result;
    result.reserve(count);
    for (std::size_t first = 0; first + corners <= count; first += corners) {
        const std::size_t before = result.size();
        for (std::size_t i = first; i < first + corners; ++i) {
            const auto index = indices.empty() ? static_cast<std::uint32_t>(i) : static_cast<std::uint32_t>(indices[i]);
            if (index >= positions.size() || !isUsable(positions[index])) {
                result.resize(before);
                break;
            }
            result.push_back(index);
        }
    }
    return result;
}

} // namespace meridane
