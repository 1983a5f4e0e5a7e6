#pragma once

#include "meridane/gl/places/detail/MeshInspection.h"
#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <array>
#include <vector>

namespace meridane {

/// The location of a mesh in the buffers of the GPU.
struct MeshRange {
    Id page = noId;
    std::uint32_t firstVertex = 0;
    std::uint32_t vertexCount = 0;
    std::uint32_t firstIndex = 0;
    std::uint32_t indexCount = 0;
};

/// A copy of a mesh on the GPU with less detail.
struct MeshLevel {
    std::uint32_t cells = 0; ///< see `simplified`
    MeshRange range;
};

/// The record of a mesh. It doesn't copy the lists of the mesh.
class MeshRecord : public NodeRecord {
public:
    /// The number of lists that are uploaded.
    static constexpr std::size_t lists = 5;

    MeshRecord(NxMesh& mesh, NodeRecordListener& listener)
        : NodeRecord(mesh, NodeKind::Mesh, listener)
    {
    }
    [[nodiscard]] const NxMesh* mesh() const noexcept { return static_cast<const NxMesh*>(node()); }

    /// The location of the mesh with that detail (0: full); its page is `noId` if the GPU doesn't have it.
    [[nodiscard]] MeshRange rangeOf(std::uint32_t cells) const
    {
        for (const MeshLevel& level : levels) {
            if (level.cells == cells)
                return level.range;
        }
        return cells == 0 ? range : MeshRange();
    }

    MeshShape shape;
    MeshRange range;
    std::vector<MeshLevel> levels;
    /// The first item of the mesh; its items form a linked list.
    Id firstItem = noId;
    /// Hashes of the lists on the GPU. A list with another hash must be uploaded again.
    std::array<std::uint64_t, lists> fingerprints{};
    bool isInspected = false;
    /// The copy with full detail isn't on the GPU, or is older than the mesh.
    bool isStale = true;
    /// The copies with less detail are older than the mesh.
    bool areLevelsStale = false;
};

} // namespace meridane
