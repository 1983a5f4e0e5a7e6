#include "meridane/scene/check/detail/MeshMends.h"

#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/check/detail/MendRecorder.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace meridane {
namespace {

/// Why a triangle, line or point isn't seen.
enum class Face { Fine, OutOfRange, NotFinite, Degenerate };

/// The lists that the faces of a mesh consist of.
struct Faces {
    std::span<const VbVec3f> positions;
    std::span<const int> indices;
    std::size_t corners = 3;

    explicit Faces(const NxMesh& mesh)
        : positions(mesh.positions.getValues())
        , indices(mesh.indices.getValues())
        , corners(cornersOf(primitiveOf(mesh)))
    {
    }

    [[nodiscard]] std::size_t count() const { return indices.empty() ? positions.size() : indices.size(); }
    [[nodiscard]] int index(std::size_t corner) const
    {
        return indices.empty() ? static_cast<int>(corner) : indices[corner];
    }
    [[nodiscard]] bool exists(int index) const
    {
        return index >= 0 && static_cast<std::size_t>(index) < positions.size();
    }

    /// What is wrong with the face of that first corner.
    [[nodiscard]] Face kindOf(std::size_t first) const
    {
        std::array<VbVec3f, 3> places;
        Face kind = Face::Fine;
        for (std::size_t i = 0; i < corners; ++i) {
            const int at = index(first + i);
            if (!exists(at))
                return Face::OutOfRange;
            places[i] = positions[static_cast<std::size_t>(at)];
            if (!isUsable(places[i]))
                kind = Face::NotFinite;
        }
        if (kind == Face::Fine
            && ((corners == 3 && hasNoArea(places[0], places[1], places[2]))
                || (corners == 2 && places[0] == places[1])))
            kind = Face::Degenerate;
        return kind;
    }

    /// The indices without the faces of that kind; with what is left over behind the last whole one, unless they are to
    /// go.
    [[nodiscard]] std::vector<int> without(Face kind, bool keepsRest = true) const
    {
        std::vector<int> kept;
        kept.reserve(count());
        const std::size_t whole = count() / corners * corners;
        for (std::size_t first = 0; first < whole; first += corners) {
            if (kind != Face::Fine && kindOf(first) == kind)
                continue;
            for (std::size_t i = first; i < first + corners; ++i)
                kept.push_back(index(i));
        }
        for (std::size_t i = whole; keepsRest && i < count(); ++i)
            kept.push_back(index(i));
        return kept;
    }
};

bool setIndices(NxMesh& mesh, std::vector<int>&& indices, MendRecorder& recorder)
{
    // An empty list would mean all positions.
    if (indices.empty() || indices.size() == Faces(mesh).count())
        return false;
    recorder.keepValue(mesh.indices);
    return mesh.indices.setValues(std::move(indices));
}

bool removePositions(NxMesh& mesh, MendRecorder& recorder)
{
    const Faces faces(mesh);
    std::vector<int> indices = faces.without(Face::NotFinite);
    std::vector<VbVec3f> positions(faces.positions.begin(), faces.positions.end());
    bool isChanged = false;
    for (VbVec3f& position : positions) {
        if (isUsable(position))
            continue;
        isChanged = true;
        for (std::size_t axis = 0; axis < 3; ++axis)
            position[axis] = std::isfinite(position[axis]) ? position[axis] : 0;
    }
    if (!isChanged || indices.empty())
        return false;
    setIndices(mesh, std::move(indices), recorder);
    recorder.keepValue(mesh.positions);
    return mesh.positions.setValues(std::move(positions));
}

double lengthOf(const VbVec3d& vector)
{
    return std::hypot(vector[0], vector[1], vector[2]);
}

std::optional<VbVec3f> unit(const VbVec3d& vector)
{
    const double length = lengthOf(vector);
    if (!(length > 0.0) || !std::isfinite(length))
        return std::nullopt;
    return VbVec3f(static_cast<float>(vector[0] / length), static_cast<float>(vector[1] / length),
        static_cast<float>(vector[2] / length));
}

/// The cross product of two sides, which is as long as twice the area.
VbVec3d areaVector(const VbVec3d& first, const VbVec3d& second, const VbVec3d& third)
{
    const VbVec3d left(second[0] - first[0], second[1] - first[1], second[2] - first[2]);
    const VbVec3d right(third[0] - first[0], third[1] - first[1], third[2] - first[2]);
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
        left[0] * right[1] - left[1] * right[0]};
}

/// For each position, the sum of the area vectors of its triangles.
std::vector<VbVec3d> areaSums(const Faces& faces)
{
    std::vector<VbVec3d> sums(faces.positions.size());
    for (std::size_t first = 0; faces.corners == 3 && first + 3 <= faces.count(); first += 3) {
        if (faces.kindOf(first) != Face::Fine)
            continue;
        const std::array<std::size_t, 3> at{static_cast<std::size_t>(faces.index(first)),
            static_cast<std::size_t>(faces.index(first + 1)), static_cast<std::size_t>(faces.index(first + 2))};
        const VbVec3d area = areaVector(faces.positions[at[0]], faces.positions[at[1]], faces.positions[at[2]]);
        for (const std::size_t corner : at) {
            for (std::size_t axis = 0; axis < 3; ++axis)
                sums[corner][axis] += area[axis];
        }
    }
    return sums;
}

bool computeZeroNormals(NxMesh& mesh, MendRecorder& recorder)
{
    const auto old = mesh.normals.getValues();
    std::vector<VbVec3f> normals(old.begin(), old.end());
    const std::vector<VbVec3d> sums = areaSums(Faces(mesh));
    bool isChanged = false;
    for (std::size_t row = 0; row < normals.size(); ++row) {
        if (normals[row] != VbVec3f())
            continue;
        normals[row] = unit(row < sums.size() ? sums[row] : VbVec3d()).value_or(VbVec3f(0, 0, 1));
        isChanged = true;
    }
    if (!isChanged)
        return false;
    recorder.keepValue(mesh.normals);
    return mesh.normals.setValues(std::move(normals));
}

bool normalise(NxMesh& mesh, MendRecorder& recorder)
{
    const auto old = mesh.normals.getValues();
    std::vector<VbVec3f> normals(old.begin(), old.end());
    bool isChanged = false;
    for (VbVec3f& normal : normals) {
        if (hasUnitLength(normal))
            continue;
        const std::optional<VbVec3f> direction = unit(normal);
        isChanged = isChanged || direction;
        normal = direction.value_or(normal);
    }
    if (!isChanged)
        return false;
    recorder.keepValue(mesh.normals);
    return mesh.normals.setValues(std::move(normals));
}

} // namespace

bool mendMesh(NxMesh& mesh, NxProblemKind kind, MendRecorder& recorder)
{
    const bool areNormals = kind == NxProblemKind::ZeroNormal || kind == NxProblemKind::NormalLength;
    if (areNormals ? mesh.normals.isIgnored() : mesh.indices.isIgnored() || mesh.positions.isIgnored())
        return false;
    switch (kind) {
    case NxProblemKind::PositionNotFinite:
        return removePositions(mesh, recorder);
    case NxProblemKind::IndexOutOfRange:
        return setIndices(mesh, Faces(mesh).without(Face::OutOfRange), recorder);
    case NxProblemKind::IncompletePrimitive:
        return setIndices(mesh, Faces(mesh).without(Face::Fine, false), recorder);
    case NxProblemKind::DegenerateFaces:
        return setIndices(mesh, Faces(mesh).without(Face::Degenerate), recorder);
    case NxProblemKind::ZeroNormal:
        return computeZeroNormals(mesh, recorder);
    case NxProblemKind::NormalLength:
        return normalise(mesh, recorder);
    default:
        return false;
    }
}

} // namespace meridane
