#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <vector>

class NxMesh;

namespace meridane {

/// What is in and below a node in one of its places: meshes, triangles and the box around them in the scene. Computed
/// in slices, since there may be millions of nodes, and millions of positions in one of them. Starts again when the
/// structure of a scene changes meanwhile.
class NodeFigures {
public:
    /// Shared groups may have more places than could ever be visited. Beyond this the figures are incomplete.
    static constexpr std::size_t mostPlaces = 2'000'000;

    /// Of the last of these nodes, each a child of the one before; the first is in the scene.
    explicit NodeFigures(std::span<NxNode* const> path);

    /// Goes on for one slice. Returns true when all is computed.
    bool advance(const WorkBudget& budget);

    /// The number of meshes so far, each use counted.
    [[nodiscard]] std::size_t meshes() const noexcept { return m_meshes; }
    /// The number of triangles so far, each use of a mesh counted. Lines and points have none.
    [[nodiscard]] std::uint64_t triangles() const noexcept { return m_triangles; }
    /// The box around the meshes so far, in scene units.
    [[nodiscard]] const NxBounds& bounds() const noexcept { return m_bounds; }
    /// False if there are too many places to visit all.
    [[nodiscard]] bool isComplete() const noexcept { return m_places < mostPlaces; }

private:
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
        Matrix4d toScene;
    };
    struct MeshFigures {
        NxBounds bounds;
        std::uint64_t triangles = 0;
    };
    /// A mesh whose positions are being looked at.
    struct Reading {
        const NxMesh* mesh = nullptr;
        std::size_t next = 0;
        MeshFigures figures;
        Matrix4d toScene;
    };

    void restart();
    void enter(const NxNode& node, const Matrix4d& above);
    std::size_t read();
    void add(const MeshFigures& figures, const Matrix4d& toScene);

    std::vector<NxRef<NxNode>> m_path;
    std::uint64_t m_revision = 0;
    std::vector<Level> m_levels;
    std::optional<Reading> m_reading;
    std::map<const NxMesh*, MeshFigures> m_known; // of several uses; never moved as a whole, as a table of hashes is
    std::size_t m_places = 0;
    std::size_t m_meshes = 0;
    std::uint64_t m_triangles = 0;
    NxBounds m_bounds;
};

} // namespace meridane
