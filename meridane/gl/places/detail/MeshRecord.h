#pragma once

#include "meridane/gl/places/detail/MeshInspection.h"
#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <array>
#include <vector>

namespace meridane {

/// Where a mesh lies in the buffers of the card.
struct MeshRange {
    Id page = noId;
    std::uint32_t firstVertex = 0;
    std::uint32_t vertexCount = 0;
    std::uint32_t firstIndex = 0;
    std::uint32_t indexCount = 0;
};

/// A mesh on the card with less detail.
struct MeshLevel {
    std::uint32_t cells = 0; ///< as `simplified` takes them
    MeshRange range;
};

/// What drawing keeps about a mesh. Of its values it keeps none.
class MeshRecord : public NodeRecord {
public:
    /// The lists that go to the card.
    static constexpr std::size_t lists = 5;

    MeshRecord(NxMesh& mesh, NodeRecordListener& listener)
        : NodeRecord(mesh, NodeKind::Mesh, listener)
    {
    }
    [[nodiscard]] const NxMesh* mesh() const noexcept { return static_cast<const NxMesh*>(node()); }

    /// Where the mesh is with that much detail, 0 for all; a range of no page if it isn't on the card.
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
    /// The first of the places of the mesh, which are linked among each other.
    Id firstItem = noId;
    /// Of the lists that the card has, which tell what must go there again.
    std::array<std::uint64_t, lists> fingerprints{};
    bool isInspected = false;
    /// The card doesn't have what the mesh has by now, with all its detail.
    bool isStale = true;
    /// The same for what it has with less detail.
    bool areLevelsStale = false;
};

} // namespace meridane
