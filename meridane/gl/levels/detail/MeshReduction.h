#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/levels/detail/ClosedSurface.h"

#include <atomic>
#include <cstdint>
#include <vector>

namespace meridane {

/// What of a mesh is needed to reduce it, without its node, so that another thread can.
struct MeshCopy {
    std::vector<VbVec3f> positions;
    std::vector<VbVec3f> normals; ///< one for each position, or none
    std::vector<std::uint32_t> indices; ///< of positions that exist and are finite; whole primitives
    std::size_t corners = 3; ///< of a primitive: 3 of triangles, 2 of lines, 1 of points
};

/// A mesh with less detail. It refers to the vertices of the whole mesh.
struct ReducedMesh {
    /// About how far the mesh is from the whole one at most, in units of the mesh.
    float error = 0;
    std::vector<std::uint32_t> positions; ///< where each vertex has its position
    std::vector<std::uint32_t> vertices; ///< where each vertex has its normal, texture coordinates and colour
    std::vector<std::uint32_t> indices;
    HiddenSides hiddenSides = HiddenSides::None; ///< of triangles
};

/// Reduces a mesh again and again, from the least reduction that is worth it to a handful of primitives; the error
/// doubles from one to the next. First the vertices in the same cell of a grid are merged, then the surface is
/// simplified where it is flat (Garland and Heckbert, "Surface Simplification Using Quadric Error Metrics", 1997).
/// Edges between normals that differ much are kept sharp.
///
/// For any thread. Returns what is done so far when `isCancelled` is set.
[[nodiscard]] std::vector<ReducedMesh> reducedMeshes(const MeshCopy& mesh, const std::atomic<bool>& isCancelled);

} // namespace meridane
