#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/levels/detail/MeshReduction.h"
#include "meridane/gl/places/detail/MeshInspection.h"

#include <cstdint>
#include <vector>

class NxMesh;

namespace meridane {

/// A mesh with less detail: the same lists, and always indices.
struct SimplifiedMesh {
    std::vector<VbVec3f> positions;
    std::vector<VbVec3f> normals;
    std::vector<VbVec2f> coordinates;
    std::vector<VbVec4f> colors;
    std::vector<std::uint32_t> indices;
};

/// Merges all vertices in the same cell of a grid, and leaves out primitives that collapse. The grid has `cells` cells
/// along the longest side of the mesh. The time grows with the number of indices.
[[nodiscard]] SimplifiedMesh simplified(const NxMesh& mesh, const MeshShape& shape, std::uint32_t cells);
/// The lists of a reduced mesh. `mesh` must have the lists that it was made from.
[[nodiscard]] SimplifiedMesh gathered(const NxMesh& mesh, const MeshShape& shape, const ReducedMesh& reduced);

} // namespace meridane
