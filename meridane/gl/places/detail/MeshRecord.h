#pragma once

#include "meridane/gl/levels/detail/MeshReduction.h"
#include "meridane/gl/places/detail/MeshInspection.h"
#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <array>
#include <memory>
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

/// Which copy of a mesh is meant: `fullDetail`, a number of cells (see `simplified`), or what `reducedDetail` returns.
using MeshDetail = std::uint32_t;
inline constexpr MeshDetail fullDetail = 0;
inline constexpr MeshDetail reducedBit = 1U << 31U;
/// The detail of the reduced mesh of that place in `MeshReduction::levels`.
[[nodiscard]] constexpr MeshDetail reducedDetail(std::size_t level) noexcept
{
    return reducedBit | static_cast<MeshDetail>(level);
}

/// A copy of a mesh on the GPU with less detail.
struct MeshLevel {
    MeshDetail detail = fullDetail;
    MeshRange range;
};

/// What a mesh is drawn from while the view moves. Without levels it is being made, or the mesh can't be reduced.
struct MeshReduction {
    std::vector<ReducedMesh> levels; ///< the finest first
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

    /// The location of the mesh with that detail; its page is `noId` if the GPU doesn't have it.
    [[nodiscard]] MeshRange rangeOf(MeshDetail detail) const
    {
        for (const MeshLevel& level : levels) {
            if (level.detail == detail)
                return level.range;
        }
        return detail == fullDetail ? range : MeshRange();
    }

    MeshShape shape;
    MeshRange range;
    std::vector<MeshLevel> levels;
    /// Null until reduced meshes are wanted.
    std::unique_ptr<MeshReduction> reduction;
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
