#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/NxBounds.h"

#include <cstdint>
#include <vector>

class NxMesh;

namespace meridane {

class NodeRecord;
class Problems;

/// The properties of a mesh that drawing needs.
struct MeshShape {
    enum class Colors : std::uint8_t { None, One, Each };

    /// Around all finite positions, in the units of the mesh.
    NxBounds bounds;
    /// A point near the positions, which are transformed relative to it. It is zero, unless the mesh is so far from its
    /// own origin that floats are too coarse to transform it. Differences from it are exact.
    VbVec3f origin;
    std::uint32_t vertexCount = 0;
    /// The indices of its primitives, or the vertices where it has none.
    std::uint32_t cornerCount = 0;
    /// One of NxMesh::Primitive.
    std::uint8_t primitive = 0;
    Colors colors = Colors::None;
    bool hasNormals = false;
    bool hasCoordinates = false;
    bool hasIndices = false;
    /// Some indices are out of range or some positions aren't finite; primitives with them must be left out.
    bool needsFilter = false;
    /// The colour of a mesh that has one colour for all vertices.
    VbVec4f oneColor;
    /// Some colour isn't opaque.
    bool isTranslucent = false;

    friend bool operator==(const MeshShape&, const MeshShape&) noexcept = default;
};

/// Examines all lists of a mesh and reports its problems.
[[nodiscard]] MeshShape inspect(const NxMesh& mesh, NodeRecord& record, Problems& problems);

} // namespace meridane
