#pragma once

#include "meridane/base/values/VbVec.h"

#include <cstdint>
#include <span>
#include <vector>

namespace meridane {

/// Merges the vertices of a mesh that are in the same cell of a grid of cubes. The position of the one nearest to the
/// middle of the cell replaces theirs. Vertices whose normals differ much remain apart, at the same position.
class VertexClusters {
public:
    /// The spans must outlive the call only. There is one normal for each position, or none.
    VertexClusters(std::span<const VbVec3f> positions, std::span<const VbVec3f> normals, float cellSize);

    /// The merged vertex of a vertex.
    [[nodiscard]] std::uint32_t clusterOf(std::uint32_t vertex) const { return m_clusters[vertex]; }
    [[nodiscard]] std::size_t count() const noexcept { return m_normalSources.size(); }
    /// The vertices from which a merged vertex has its position and everything else.
    [[nodiscard]] std::uint32_t positionOf(std::uint32_t cluster) const { return m_cells[m_cellOf[cluster]].nearest; }
    [[nodiscard]] std::uint32_t vertexOf(std::uint32_t cluster) const { return m_normalSources[cluster]; }
    /// The cell of a merged vertex.
    [[nodiscard]] std::uint32_t cellOf(std::uint32_t cluster) const { return m_cellOf[cluster]; }

private:
    struct Cell {
        std::uint64_t place;
        float distance; // of the nearest vertex to the middle, squared
        std::uint32_t nearest;
        std::uint32_t firstCluster;
    };

    [[nodiscard]] std::uint32_t findCell(std::uint64_t place);
    void growTable();
    [[nodiscard]] std::uint32_t findCluster(std::uint32_t cell, std::uint32_t vertex, std::span<const VbVec3f> normals);

    std::vector<std::uint32_t> m_clusters; // of each vertex
    std::vector<std::uint32_t> m_normalSources; // of each cluster
    std::vector<std::uint32_t> m_cellOf; // each cluster
    std::vector<std::uint32_t> m_nextInCell; // of each cluster
    std::vector<Cell> m_cells;
    std::vector<std::uint32_t> m_table; // cells by their places, with open addressing
};

} // namespace meridane
