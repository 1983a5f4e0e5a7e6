#include "meridane/gl/levels/detail/ClosedSurface.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace meridane {
namespace {

constexpr std::size_t perTriangle = 3;
/// A part whose volume is a smaller share of the sum of its pieces is flat: either side may be called its outside.
constexpr double flatShare = 1e-5;

/// The corners of triangles, with one number for each place.
std::vector<std::uint32_t> numbersOf(std::span<const std::uint32_t> places, std::span<const std::uint32_t> indices)
{
    std::vector<std::uint32_t> known;
    known.reserve(indices.size());
    for (const std::uint32_t index : indices)
        known.push_back(places[index]);
    std::vector<std::uint32_t> numbers = known;
    std::sort(known.begin(), known.end());
    known.erase(std::unique(known.begin(), known.end()), known.end());
    for (std::uint32_t& number : numbers) {
        const auto place = std::lower_bound(known.begin(), known.end(), number);
        number = static_cast<std::uint32_t>(place - known.begin());
    }
    return numbers;
}

bool hasBorder(std::span<const std::uint32_t> corners)
{
    std::vector<std::uint64_t> forward;
    std::vector<std::uint64_t> backward;
    forward.reserve(corners.size());
    backward.reserve(corners.size());
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const std::uint64_t from = corners[i];
        const std::uint64_t to = corners[i % perTriangle == perTriangle - 1 ? i + 1 - perTriangle : i + 1];
        if (from == to)
            continue;
        forward.push_back(from << 32U | to);
        backward.push_back(to << 32U | from);
    }
    std::sort(forward.begin(), forward.end());
    std::sort(backward.begin(), backward.end());
    return forward != backward;
}

/// The connected parts of a surface.
class Parts {
public:
    explicit Parts(std::span<const std::uint32_t> corners)
        : m_above(corners.empty() ? 0 : *std::max_element(corners.begin(), corners.end()) + std::size_t{1})
    {
        std::iota(m_above.begin(), m_above.end(), 0U);
        for (std::size_t first = 0; first < corners.size(); first += perTriangle) {
            m_above[partOf(corners[first + 1])] = partOf(corners[first]);
            m_above[partOf(corners[first + 2])] = partOf(corners[first]);
        }
    }

    std::uint32_t partOf(std::uint32_t corner)
    {
        while (m_above[corner] != corner) {
            m_above[corner] = m_above[m_above[corner]];
            corner = m_above[corner];
        }
        return corner;
    }

private:
    std::vector<std::uint32_t> m_above;
};

struct Volume {
    double sum = 0;
    double pieces = 0;
};

/// The volumes inside of the parts, which are negative where the triangles run clockwise; in any unit.
std::vector<Volume> volumesOf(
    std::span<const VbVec3f> positions, std::span<const std::uint32_t> indices, std::span<const std::uint32_t> corners)
{
    Parts parts(corners);
    std::vector<Volume> volumes(corners.size());
    const VbVec3f& middle = positions[indices.front()]; // sums are more exact near the surface
    for (std::size_t first = 0; first < indices.size(); first += perTriangle) {
        std::array<VbVec3f, perTriangle> from;
        for (std::size_t i = 0; i < perTriangle; ++i)
            from[i] = subtract(positions[indices[first + i]], middle);
        const double piece = dot(from[0], cross(from[1], from[2]));
        Volume& volume = volumes[parts.partOf(corners[first])];
        volume.sum += piece;
        volume.pieces += std::abs(piece);
    }
    return volumes;
}

} // namespace

HiddenSides hiddenSidesOf(
    std::span<const VbVec3f> positions, std::span<const std::uint32_t> places, std::span<const std::uint32_t> indices)
{
    if (indices.empty())
        return HiddenSides::None;
    const std::vector<std::uint32_t> corners = numbersOf(places, indices);
    if (hasBorder(corners))
        return HiddenSides::None;
    bool hasOutwards = false;
    bool hasInwards = false;
    for (const Volume& volume : volumesOf(positions, indices, corners)) {
        if (!std::isfinite(volume.sum))
            return HiddenSides::None;
        hasOutwards = hasOutwards || volume.sum > volume.pieces * flatShare;
        hasInwards = hasInwards || volume.sum < -volume.pieces * flatShare;
    }
    if (hasOutwards == hasInwards)
        return HiddenSides::None;
    return hasOutwards ? HiddenSides::Back : HiddenSides::Front;
}

} // namespace meridane
