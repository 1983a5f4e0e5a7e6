#include "meridane/gl/places/detail/MeshInspection.h"

#include "meridane/gl/places/detail/Problems.h"
#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace meridane {
namespace {

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

/// Whether there is one value for each position. Reports any other number, unless it is 0.
bool hasEach(std::size_t count, std::size_t positions, NxProblemKind kind, Problem problem, NodeRecord& record,
    Problems& problems, bool oneIsFine = false)
{
    const bool isWrong = positions != 0 && count != 0 && count != positions && !(oneIsFine && count == 1);
    problems.note(record, problem, isWrong, [&] { return problemText(kind, {.count = count, .total = positions}); });
    return count != 0 && count == positions;
}

void inspectColors(MeshShape& shape, std::span<const VbVec4f> colors, NodeRecord& record, Problems& problems)
{
    if (hasEach(
            colors.size(), shape.vertexCount, NxProblemKind::ColorCount, Problem::ColorCount, record, problems, true))
        shape.colors = MeshShape::Colors::Each;
    else if (colors.size() == 1)
        shape.colors = MeshShape::Colors::One;
    if (shape.colors == MeshShape::Colors::One)
        shape.oneColor = colors.front();
    shape.isTranslucent = shape.colors != MeshShape::Colors::None
        && std::any_of(colors.begin(), colors.end(), [](const VbVec4f& color) { return color[3] < 1; });
}

} // namespace

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
    shape.cornerCount = static_cast<std::uint32_t>(count);
    const std::size_t outOfRange = countOutOfRange(indices, positions.size());
    const bool isIncomplete = count % corners != 0;

    problems.note(
        record, Problem::NoPositions, positions.empty(), [] { return problemText(NxProblemKind::NoPositions); });
    problems.note(record, Problem::PositionNotFinite, uselessPositions != 0, [&] {
        return problemText(NxProblemKind::PositionNotFinite, {.count = uselessPositions, .total = positions.size()});
    });
    problems.note(record, Problem::IndexOutOfRange, outOfRange != 0 && !positions.empty(), [&] {
        return problemText(
            NxProblemKind::IndexOutOfRange, {.count = outOfRange, .total = indices.size(), .limit = positions.size()});
    });
    problems.note(record, Problem::IncompletePrimitive, isIncomplete, [&] {
        return problemText(NxProblemKind::IncompletePrimitive,
            {.total = count, .limit = corners, .detail = indices.empty() ? "positions" : "indices"});
    });
    shape.hasNormals = hasEach(effectiveField(mesh.normals).getValues().size(), positions.size(),
        NxProblemKind::NormalCount, Problem::NormalCount, record, problems);
    shape.hasCoordinates = hasEach(effectiveField(mesh.textureCoordinates).getValues().size(), positions.size(),
        NxProblemKind::CoordinateCount, Problem::CoordinateCount, record, problems);
    inspectColors(shape, effectiveField(mesh.colors).getValues(), record, problems);
    shape.needsFilter = uselessPositions != 0 || outOfRange != 0 || isIncomplete;
    shape.hasIndices = !indices.empty() || shape.needsFilter;
    return shape;
}

} // namespace meridane
