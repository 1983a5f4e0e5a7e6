#include "meridane/gl/places/detail/MeshInspection.h"

#include "meridane/gl/places/detail/Problems.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

namespace meridane {
namespace {

bool isUsable(const VbVec3f& point)
{
    // One test instead of three: infinity and NaN times 0 are NaN.
    return std::isfinite(point[0] * 0 + point[1] * 0 + point[2] * 0);
}

std::size_t inspectPositions(std::span<const VbVec3f> positions, NxBounds& bounds)
{
    std::size_t useless = 0;
    for (const VbVec3f& position : positions) {
        if (isUsable(position))
            bounds.include(position);
        else
            ++useless;
    }
    return useless;
}

/// Only the upper bits of the center, so that adjacent meshes have the same origin and their common edges are drawn at
/// the same pixels.
VbVec3f originOf(const NxBounds& bounds)
{
    constexpr float farAway = 64; // in sizes of the mesh
    constexpr int bits = 16;
    VbVec3f origin;
    if (bounds.isEmpty())
        return origin;
    const VbVec3f center = bounds.center();
    const VbVec3f size = bounds.size();
    const float longest = std::max({size[0], size[1], size[2]});
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!(std::abs(center[axis]) > farAway * longest))
            continue;
        int exponent = 0;
        const float fraction = std::frexp(center[axis], &exponent);
        origin[axis] = std::ldexp(std::round(std::ldexp(fraction, bits)), exponent - bits);
    }
    return origin;
}

std::size_t countOutOfRange(std::span<const int> indices, std::size_t vertexCount)
{
    return static_cast<std::size_t>(std::count_if(indices.begin(), indices.end(),
        [vertexCount](int index) { return index < 0 || static_cast<std::size_t>(index) >= vertexCount; }));
}

/// Whether there is one value for each position. Reports any other number, unless it is 0.
bool hasEach(std::size_t count, std::size_t positions, const char* what, Problem problem, NodeRecord& record,
    Problems& problems, bool oneIsFine = false)
{
    const bool isWrong = positions != 0 && count != 0 && count != positions && !(oneIsFine && count == 1);
    problems.note(record, problem, isWrong, [&] {
        return std::to_string(count) + " " + what + " for " + std::to_string(positions)
            + " positions; drawn as if it had none";
    });
    return count != 0 && count == positions;
}

void inspectColors(MeshShape& shape, std::span<const VbVec4f> colors, NodeRecord& record, Problems& problems)
{
    if (hasEach(colors.size(), shape.vertexCount, "colours", Problem::ColorCount, record, problems, true))
        shape.colors = MeshShape::Colors::Each;
    else if (colors.size() == 1)
        shape.colors = MeshShape::Colors::One;
    if (shape.colors == MeshShape::Colors::One)
        shape.oneColor = colors.front();
    shape.isTranslucent = shape.colors != MeshShape::Colors::None
        && std::any_of(colors.begin(), colors.end(), [](const VbVec4f& color) { return color[3] < 1; });
}

int primitiveOf(const NxMesh& mesh)
{
    const int primitive = effectiveField(mesh.primitive).getValue();
    return primitive == NxMesh::LINES || primitive == NxMesh::POINTS ? primitive : int{NxMesh::TRIANGLES};
}

} // namespace

std::size_t cornersOf(int primitive)
{
    return primitive == NxMesh::POINTS ? 1 : primitive == NxMesh::LINES ? 2 : 3;
}

MeshShape inspect(const NxMesh& mesh, NodeRecord& record, Problems& problems)
{
    MeshShape shape;
    const std::span<const VbVec3f> positions = effectiveField(mesh.positions).getValues();
    const std::span<const int> indices = effectiveField(mesh.indices).getValues();
    shape.vertexCount = static_cast<std::uint32_t>(positions.size());
    shape.primitive = static_cast<std::uint8_t>(primitiveOf(mesh));
    const std::size_t uselessPositions = inspectPositions(positions, shape.bounds);
    shape.origin = originOf(shape.bounds);
    const std::size_t corners = cornersOf(shape.primitive);
    const std::size_t count = indices.empty() ? positions.size() : indices.size();
    const std::size_t outOfRange = countOutOfRange(indices, positions.size());
    const bool isIncomplete = count % corners != 0;

    problems.note(record, Problem::NoPositions, positions.empty(), [] { return "it has no positions to draw"; });
    problems.note(record, Problem::PositionNotFinite, uselessPositions != 0, [&] {
        return std::to_string(uselessPositions) + " of " + std::to_string(positions.size())
            + " positions are no finite numbers; what they belong to isn't drawn";
    });
    problems.note(record, Problem::IndexOutOfRange, outOfRange != 0 && !positions.empty(), [&] {
        return std::to_string(outOfRange) + " of " + std::to_string(indices.size())
            + " indices are out of range, from 0 to " + std::to_string(positions.size() - 1)
            + "; what they belong to isn't drawn";
    });
    problems.note(record, Problem::IncompletePrimitive, isIncomplete, [&] {
        return "the number of its " + std::string(indices.empty() ? "positions, " : "indices, ") + std::to_string(count)
            + ", isn't a multiple of " + std::to_string(corners) + "; the last ones aren't drawn";
    });
    shape.hasNormals = hasEach(effectiveField(mesh.normals).getValues().size(), positions.size(), "normals",
        Problem::NormalCount, record, problems);
    shape.hasCoordinates = hasEach(effectiveField(mesh.textureCoordinates).getValues().size(), positions.size(),
        "texture coordinates", Problem::CoordinateCount, record, problems);
    inspectColors(shape, effectiveField(mesh.colors).getValues(), record, problems);
    shape.needsFilter = uselessPositions != 0 || outOfRange != 0 || isIncomplete;
    shape.hasIndices = !indices.empty() || shape.needsFilter;
    return shape;
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
