#pragma once

#include "meridane/gl/places/detail/BoundsTree.h"
#include "meridane/gl/places/detail/Looks.h"
#include "meridane/gl/places/detail/NodeRecords.h"
#include "meridane/gl/places/detail/PlaceTable.h"
#include "meridane/gl/places/detail/Problems.h"
#include "meridane/scene/fields/NxRef.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <tuple>
#include <vector>

namespace meridane {

class KeptPlaces;

/// The scene as it is drawn: each mesh in each of its places, with the matrix and the look that it has there, and where
/// it lies. It knows nothing of OpenGL.
///
/// Sensors note what changes at once, and tell the listener with the next pass of the delay queue. `update` brings all
/// that changed up to then in line: the places below a moved transform, the contents of a group with other children,
/// what hangs on the node itself for all other kinds. Until the next change, places and records fit the nodes.
class PlacedScene final : private NodeRecordListener {
public:
    /// Groups in each other and shared may stand in more places than any memory holds.
    static constexpr std::size_t defaultMaxPlaces = 4'000'000;

    /// Who holds what the card has of a node is told when nobody needs it any more.
    struct Listener {
        std::function<void()> changed; ///< something changed; `update` is due
        std::function<void(MeshRecord&)> releaseMesh;
        std::function<void(TextureRecord&)> releaseTexture;
    };

    /// What would take more than `maxPlaces` places of groups and meshes is left out, which is reported once for a
    /// scene. It comes in when the group that it stands in changes and there is room, or when a quarter of the places
    /// is free.
    explicit PlacedScene(Listener listener, std::size_t maxPlaces = defaultMaxPlaces);
    PlacedScene(const PlacedScene&) = delete;
    PlacedScene& operator=(const PlacedScene&) = delete;
    ~PlacedScene();

    void setRoot(NxNode* root);
    [[nodiscard]] NxNode* root() const noexcept { return m_root.get(); }
    /// Follows the changes since the latest call.
    void update();

    [[nodiscard]] const PlaceTable& table() const noexcept { return m_table; }
    [[nodiscard]] const Looks& looks() const noexcept { return m_looks; }
    [[nodiscard]] BoundsTree& tree() noexcept { return m_tree; }
    [[nodiscard]] Problems& problems() noexcept { return m_problems; }
    /// A number that changes with the places.
    [[nodiscard]] std::uint64_t structure() const noexcept { return m_structure; }
    /// What following the scene has cost so far: nodes visited, places moved and keys of places compared.
    [[nodiscard]] std::uint64_t steps() const noexcept { return m_steps; }
    /// A number that changes with the lights and where they are.
    [[nodiscard]] std::uint64_t lighting() const noexcept { return m_lighting; }

    /// The meshes below a node, in all its places.
    [[nodiscard]] std::vector<Id> itemsBelow(const NxNode* node) const;
    /// The same for one place, told by the nodes from a child of the root down.
    [[nodiscard]] std::vector<Id> itemsBelow(std::span<const NxNode* const> path) const;
    /// The box around an item, relative to that point, which makes it exact far from the origin; empty for one that
    /// lies farther away than floats reach.
    [[nodiscard]] NxBounds boundsOf(const Item& item, const VbVec3d& from = VbVec3d()) const;
    /// Calls `visit` with each record of a texture or mesh.
    template <typename Record, typename Visit>
    void forEach(NodeKind kind, Visit visit)
    {
        m_records.forEach([&](NodeRecord& record) {
            if (record.kind() == kind)
                visit(static_cast<Record&>(record));
        });
    }
    [[nodiscard]] std::size_t bytes() const noexcept;

private:
    /// The place above the scene's own node.
    static constexpr Id topPlace = 0;
    struct Filling;

    void nodeTouched(NodeRecord& record) override;
    void nodeChanged(NodeRecord& record) override;
    void nodeDied(NodeRecord& record) override;
    void followPending();
    void follow(NodeRecord& record);
    void followChildren(GroupRecord& group);
    void followTransform(GroupRecord& group);
    void followMesh(MeshRecord& mesh);

    /// False when something was left out.
    bool fill(Id top, KeptPlaces* kept = nullptr);
    void refill(Id top);
    bool hasRoom();
    void reportCut();
    void fillFreeRoom();
    void visit(NxNode& node, std::vector<Filling>& stack);
    [[nodiscard]] Id lookOf(Filling& filling);
    void addLight(NxLight& light, Filling& filling);
    void addGroup(NxGroup& group, std::vector<Filling>& stack);
    void addMesh(NxMesh& mesh, Filling& filling);
    void empty(Id top);
    void removePlace(Id id);
    void removeItem(Id id);
    void move(Id top);
    [[nodiscard]] Matrix4d worldTransformIn(GroupRecord& group, const Matrix4d& parent);
    void inspectMesh(MeshRecord& mesh);
    void collect(Id top, std::vector<Id>& items) const;
    void destroyUnusedRecords();

    Listener m_listener;
    NxRef<NxNode> m_root;
    NodeRecords m_records;
    Looks m_looks{m_records};
    /// By what they consist of, so that a group that is filled again finds its lists of lights again.
    std::map<std::tuple<const LightList*, const LightRecord*, Id>, std::weak_ptr<const LightList>> m_lightLists;
    std::size_t m_lightListsToSweep = LightList::maxLights; // from how many entries on those of no list are taken out
    PlaceTable m_table;
    BoundsTree m_tree;
    Problems m_problems;
    std::vector<NodeRecord*> m_pending; // changed since the latest update
    std::uint64_t m_structure = 0;
    std::uint64_t m_lighting = 0;
    std::uint64_t m_steps = 0;
    std::size_t m_maxPlaces;
    bool m_isCut = false; // something was left out for want of room
    bool m_isCutReported = false;
};

} // namespace meridane
