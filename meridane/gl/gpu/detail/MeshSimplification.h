#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/places/detail/MeshInspection.h"

#include <cstdint>
#include <vector>

class NxMesh;

namespace meridane {

/// A mesh with less detail. It has the lists that the mesh has, and indices.
struct SimplifiedMesh {
    std::vector<VbVec3f> positions;
    std::vector<VbVec3f> normals;
    std::vector<VbVec2f> coordinates;
    std::vector<VbVec4f> colors;
    std::vector<std::uint32_t> indices;
};

/// Makes one corner of all that lie in the same cell of a grid, which has that many cells along the longest side of the
/// mesh, and leaves out what collapses. The time grows with the number of indices.
[[nodiscard]] SimplifiedMesh simplified(const NxMesh& mesh, const MeshShape& shape, std::uint32_t cells);

} // namespace meridane
