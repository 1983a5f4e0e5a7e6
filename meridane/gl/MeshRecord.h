#pragma once

#include "meridane/gl/MeshInspection.h"
#include "meridane/gl/NodeRecord.h"
#include "meridane/scene/NxMesh.h"

#include <array>

namespace meridane {

/// Where a mesh lies in the buffers of the card.
struct MeshRange {
    Id page = noId;
    std::uint32_t firstVertex = 0;
    std::uint32_t vertexCount = 0;
    std::uint32_t firstIndex = 0;
    std::uint32_t indexCount = 0;
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

    MeshShape shape;
    MeshRange range;
    /// The first of the places of the mesh, which are linked among each other.
    Id firstItem = noId;
    /// Of the lists that the card has, which tell what must go there again.
    std::array<std::uint64_t, lists> fingerprints{};
    bool isInspected = false;
    /// The card doesn't have what the mesh has by now.
    bool isStale = true;
};

} // namespace meridane
