#include "meridane/gl/levels/detail/VertexClusters.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxBounds.h"

#include <algorithm>
#include <array>
#include <limits>

namespace meridane {
namespace {

constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t firstTableSize = 1024;
/// Cells along a side of the grid; three such numbers fit in 64 bits.
constexpr double mostCells = (1U << 21U) - 1;

std::size_t hashOf(std::uint64_t place)
{
    place *= 0x9E3779B97F4A7C15U; // mixes the lower bits into the upper ones
    return place >> 20U;
}

} // namespace

VertexClusters::VertexClusters(std::span<const VbVec3f> positions, std::span<const VbVec3f> normals, float cellSize)
    : m_clusters(positions.size(), none)
    , m_table(firstTableSize, none)
{
    NxBounds bounds;
    for (const VbVec3f& position : positions) {
        if (isFinite(position))
            bounds.include(position);
    }
    const double scale = cellSize > 0 ? 1 / static_cast<double>(cellSize) : 0;
    for (std::uint32_t vertex = 0; vertex < positions.size(); ++vertex) {
        const VbVec3f& position = positions[vertex];
        if (!isFinite(position))
            continue;
        std::uint64_t place = 0;
        double distance = 0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double exact = (static_cast<double>(position[axis]) - static_cast<double>(bounds.min[axis])) * scale;
            const auto cell = static_cast<std::uint64_t>(std::min(exact, mostCells));
            const double fromMiddle = exact - static_cast<double>(cell) - 0.5;
            distance += fromMiddle * fromMiddle;
            place = place << 21U | cell;
        }
        const std::uint32_t number = findCell(place);
        Cell& cell = m_cells[number];
        if (static_cast<float>(distance) < cell.distance) {
            cell.distance = static_cast<float>(distance);
            cell.nearest = vertex;
        }
        m_clusters[vertex] = findCluster(number, vertex, normals);
    }
}

std::uint32_t VertexClusters::findCell(std::uint64_t place)
{
    if (m_cells.size() * 2 >= m_table.size())
        growTable();
    const std::size_t mask = m_table.size() - 1;
    std::size_t slot = hashOf(place) & mask;
    while (m_table[slot] != none && m_cells[m_table[slot]].place != place)
        slot = (slot + 1) & mask;
    if (m_table[slot] == none) {
        m_table[slot] = static_cast<std::uint32_t>(m_cells.size());
        m_cells.push_back({place, std::numeric_limits<float>::max(), none, none});
    }
    return m_table[slot];
}

void VertexClusters::growTable()
{
    m_table.assign(m_table.size() * 4, none);
    const std::size_t mask = m_table.size() - 1;
    for (std::uint32_t cell = 0; cell < m_cells.size(); ++cell) {
        std::size_t slot = hashOf(m_cells[cell].place) & mask;
        while (m_table[slot] != none)
            slot = (slot + 1) & mask;
        m_table[slot] = cell;
    }
}

std::uint32_t VertexClusters::findCluster(std::uint32_t cell, std::uint32_t vertex, std::span<const VbVec3f> normals)
{
    constexpr double similar = 0.5; // the cosine of 60 degrees
    for (std::uint32_t cluster = m_cells[cell].firstCluster; cluster != none; cluster = m_nextInCell[cluster]) {
        if (normals.empty())
            return cluster;
        const VbVec3f& known = normals[m_normalSources[cluster]];
        // Normals that aren't finite, or have no direction, join any others.
        if (!(dot(known, normals[vertex]) < similar))
            return cluster;
    }
    const auto cluster = static_cast<std::uint32_t>(m_normalSources.size());
    m_normalSources.push_back(vertex);
    m_cellOf.push_back(cell);
    m_nextInCell.push_back(m_cells[cell].firstCluster);
    m_cells[cell].firstCluster = cluster;
    return cluster;
}

} // namespace meridane
