#include "meridane/gl/gpu/detail/MeshSimplification.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <span>
#include <unordered_map>

namespace meridane {
namespace {

/// The grid of cells around a mesh.
class Grid {
public:
    Grid(const NxBounds& bounds, std::uint32_t cells)
        : m_origin(bounds.min)
        , m_cells(cells)
    {
        const VbVec3f size = bounds.size();
        const float longest = std::max({size[0], size[1], size[2]});
        m_scale = longest > 0 ? static_cast<float>(cells) / longest : 0;
    }

    [[nodiscard]] std::uint64_t cellOf(const VbVec3f& point) const
    {
        std::uint64_t cell = 0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const float place = std::max((point[axis] - m_origin[axis]) * m_scale, 0.0F);
            cell = cell * m_cells + std::min(static_cast<std::uint32_t>(place), m_cells - 1);
        }
        return cell;
    }

private:
    VbVec3f m_origin;
    std::uint32_t m_cells;
    float m_scale = 0;
};

/// Merges vertices; the first one of a cell replaces the others.
class Corners {
public:
    Corners(const NxMesh& mesh, const MeshShape& shape, std::uint32_t cells, SimplifiedMesh& result)
        : m_grid(shape.bounds, cells)
        , m_positions(effectiveField(mesh.positions).getValues())
        , m_result(result)
    {
        if (shape.hasNormals)
            m_normals = effectiveField(mesh.normals).getValues();
        if (shape.hasCoordinates)
            m_coordinates = effectiveField(mesh.textureCoordinates).getValues();
        if (shape.colors == MeshShape::Colors::Each)
            m_colors = effectiveField(mesh.colors).getValues();
    }

    std::uint32_t take(std::uint32_t index)
    {
        const auto next = static_cast<std::uint32_t>(m_result.positions.size());
        const auto [place, isNew] = m_numbers.try_emplace(m_grid.cellOf(m_positions[index]), next);
        if (isNew) {
            m_result.positions.push_back(m_positions[index]);
            if (!m_normals.empty())
                m_result.normals.push_back(m_normals[index]);
            if (!m_coordinates.empty())
                m_result.coordinates.push_back(m_coordinates[index]);
            if (!m_colors.empty())
                m_result.colors.push_back(m_colors[index]);
        } else if (!m_normals.empty()) {
            VbVec3f& sum = m_result.normals[place->second];
            sum = add(sum, m_normals[index]); // the shaders normalise it
        }
        return place->second;
    }

private:
    Grid m_grid;
    std::span<const VbVec3f> m_positions;
    std::span<const VbVec3f> m_normals;
    std::span<const VbVec2f> m_coordinates;
    std::span<const VbVec4f> m_colors;
    std::unordered_map<std::uint64_t, std::uint32_t> m_numbers;
    SimplifiedMesh& m_result;
};

} // namespace

SimplifiedMesh simplified(const NxMesh& mesh, const MeshShape& shape, std::uint32_t cells)
{
    SimplifiedMesh result;
    Corners corners(mesh, shape, cells, result);
    const std::vector<std::uint32_t> indices = usableIndices(mesh);
    const std::size_t count = cornersOf(shape.primitive);
    for (std::size_t first = 0; first + count <= indices.size(); first += count) {
        const std::size_t before = result.indices.size();
        const std::size_t knownCells = result.positions.size();
        for (std::size_t i = first; i < first + count; ++i) {
            const std::uint32_t corner = corners.take(indices[i]);
            const auto own = result.indices.begin() + static_cast<std::ptrdiff_t>(before);
            if (std::find(own, result.indices.end(), corner) != result.indices.end()) {
                result.indices.resize(before);
                break;
            }
            result.indices.push_back(corner);
        }
        // Of points, one in each cell is kept.
        if (count == 1 && result.positions.size() == knownCells)
            result.indices.pop_back();
    }
    return result;
}

namespace {

template <typename Value>
std::vector<Value> pick(std::span<const Value> values, std::span<const std::uint32_t> places)
{
    std::vector<Value> picked;
    picked.reserve(places.size());
    for (const std::uint32_t place : places)
        picked.push_back(values[place]);
    return picked;
}

} // namespace

SimplifiedMesh gathered(const NxMesh& mesh, const MeshShape& shape, const ReducedMesh& reduced)
{
    SimplifiedMesh result;
    result.positions = pick(effectiveField(mesh.positions).getValues(), reduced.positions);
    if (shape.hasNormals)
        result.normals = pick(effectiveField(mesh.normals).getValues(), reduced.vertices);
    if (shape.hasCoordinates)
        result.coordinates = pick(effectiveField(mesh.textureCoordinates).getValues(), reduced.vertices);
    if (shape.colors == MeshShape::Colors::Each)
        result.colors = pick(effectiveField(mesh.colors).getValues(), reduced.vertices);
    result.indices = reduced.indices;
    return result;
}

} // namespace meridane
