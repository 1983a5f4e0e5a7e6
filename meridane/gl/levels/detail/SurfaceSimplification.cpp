#include "meridane/gl/levels/detail/SurfaceSimplification.h"

#include "meridane/gl/geometry/NxBounds.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <meshoptimizer.h>

namespace meridane {
namespace {

constexpr std::size_t triangleCorners = 3;
/// Triangles of a part, which takes about a fifth of a second.
constexpr std::size_t partTriangles = 200'000;

/// Simplifies some triangles. `locals` has `none` for each vertex, before and after.
class PartSimplifier {
public:
    explicit PartSimplifier(std::span<const VbVec3f> positions)
        : m_all(positions)
        , m_locals(positions.size(), none)
    {
    }

    std::vector<std::uint32_t> simplify(std::span<const std::uint32_t> indices, float error, bool keepsBorder)
    {
        m_positions.clear();
        m_vertices.clear();
        std::vector<std::uint32_t> local;
        local.reserve(indices.size());
        for (const std::uint32_t vertex : indices) {
            if (m_locals[vertex] == none) {
                m_locals[vertex] = static_cast<std::uint32_t>(m_vertices.size());
                m_vertices.push_back(vertex);
                m_positions.push_back(m_all[vertex]);
            }
            local.push_back(m_locals[vertex]);
        }
        for (const std::uint32_t vertex : m_vertices)
            m_locals[vertex] = none;
        const float* const places = m_positions.empty() ? nullptr : m_positions.front().getValue();
        const float scale = meshopt_simplifyScale(places, m_positions.size(), sizeof(VbVec3f));
        if (!(scale > 0))
            return {};
        std::vector<std::uint32_t> result(local.size());
        result.resize(meshopt_simplify(result.data(), local.data(), local.size(), places, m_positions.size(),
            sizeof(VbVec3f), 0, error / scale, keepsBorder ? unsigned{meshopt_SimplifyLockBorder} : 0U, nullptr));
        for (std::uint32_t& vertex : result)
            vertex = m_vertices[vertex];
        return result;
    }

private:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    std::span<const VbVec3f> m_all;
    std::vector<std::uint32_t> m_locals;
    std::vector<std::uint32_t> m_vertices;
    std::vector<VbVec3f> m_positions;
};

/// The triangles in such an order that neighbours in it are mostly neighbours in space: by cubes of the box around
/// them.
std::vector<std::uint32_t> inCubes(std::span<const VbVec3f> positions, std::span<const std::uint32_t> indices)
{
    constexpr std::uint32_t cubes = 16; // along each axis
    NxBounds bounds;
    for (const std::uint32_t vertex : indices)
        bounds.include(positions[vertex]);
    const VbVec3f size = bounds.size();
    const float longest = std::max({size[0], size[1], size[2]});
    const auto cubeOf = [&](std::uint32_t vertex) {
        std::uint32_t cube = 0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const float place = (positions[vertex][axis] - bounds.min[axis]) / longest * static_cast<float>(cubes);
            cube = cube * cubes + std::min(static_cast<std::uint32_t>(std::max(place, 0.0F)), cubes - 1);
        }
        return cube;
    };
    std::vector<std::size_t> places(std::size_t{cubes} * cubes * cubes + 1);
    for (std::size_t first = 0; first < indices.size(); first += triangleCorners)
        places[cubeOf(indices[first]) + 1] += triangleCorners;
    for (std::size_t cube = 1; cube < places.size(); ++cube)
        places[cube] += places[cube - 1];
    std::vector<std::uint32_t> sorted(indices.size());
    for (std::size_t first = 0; first < indices.size(); first += triangleCorners) {
        std::size_t& place = places[cubeOf(indices[first])];
        for (std::size_t corner = 0; corner < triangleCorners; ++corner)
            sorted[place++] = indices[first + corner];
    }
    return sorted;
}

} // namespace

std::vector<std::uint32_t> simplifiedTriangles(std::span<const VbVec3f> positions, std::vector<std::uint32_t> indices,
    float error, const std::atomic<bool>& isCancelled)
{
    constexpr std::size_t part = partTriangles * triangleCorners;
    PartSimplifier simplifier(positions);
    float left = error;
    while (indices.size() > 2 * part) {
        indices = inCubes(positions, indices);
        std::vector<std::uint32_t> joined;
        left /= 2;
        for (std::size_t first = 0; first < indices.size() && !isCancelled; first += part) {
            const std::span<const std::uint32_t> some(
                indices.begin() + static_cast<std::ptrdiff_t>(first), std::min(part, indices.size() - first));
            const std::vector<std::uint32_t> fewer = simplifier.simplify(some, left, true);
            joined.insert(joined.end(), fewer.begin(), fewer.end());
        }
        const bool isWorthIt = joined.size() < indices.size() / 10 * 8;
        indices = std::move(joined);
        if (isCancelled || !isWorthIt)
            return indices;
    }
    return simplifier.simplify(indices, left, false);
}

} // namespace meridane
