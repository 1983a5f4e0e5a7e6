#pragma once

#include "meridane/gl/places/NxNodeVisibility.h"
#include "meridane/gl/places/detail/BoundsTree.h"
#include "meridane/gl/places/detail/Looks.h"
#include "meridane/gl/places/detail/NodeRecords.h"
#include "meridane/gl/places/detail/PlaceTable.h"
#include "meridane/gl/places/detail/Problems.h"
#include "meridane/gl/places/detail/TextureWatch.h"
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

/// The scene as it is drawn: all instances of all meshes, each with its world transform, look and box. Doesn't use
/// OpenGL.
///
/// Sensors note changes at once and notify the listener with the next pass of the delay queue. `update` applies all
/// changes since the last call: the places below a changed transform, the contents of a group with other children, and
/// the record of any other node. After it, places and records match the nodes until the next change.
class PlacedScene final : private NodeRecordListener {
public:
    /// Shared groups inside each other may have more instances than fit in memory.
    static constexpr std::size_t defaultMaxPlaces = 4'000'000;

    /// `releaseMesh` and `releaseTexture` are called when the last instance of a node is gone, so that its GPU
    /// resources can be freed.
    struct Listener {
        std::function<void()> changed; ///< something changed; `update` is due
        std::function<void(MeshRecord&)> releaseMesh;
        std::function<void(TextureRecord&)> releaseTexture;
    };

    /// Instances of groups and meshes beyond `maxPlaces` are left out, which is reported once for a scene. They are
    /// added later when there is room and their group changes, or when a quarter of the places is free.
    explicit PlacedScene(Listener listener, std::size_t maxPlaces = defaultMaxPlaces);
    PlacedScene(const PlacedScene&) = delete;
    PlacedScene& operator=(const PlacedScene&) = delete;
    ~PlacedScene();

    void setRoot(NxNode* root);
    [[nodiscard]] NxNode* root() const noexcept { return m_root.get(); }
    /// Applies the changes since the last call.
    void update();
    /// Which nodes are shown; the boxes of others aren't in `tree`. Ended by another root.
    void setVisibility(NxNodeVisibility visibility);
    [[nodiscard]] bool isShown(Id item) const;

    [[nodiscard]] const PlaceTable& table() const noexcept { return m_table; }
    [[nodiscard]] const Looks& looks() const noexcept { return m_looks; }
    [[nodiscard]] BoundsTree& tree() noexcept { return m_tree; }
    [[nodiscard]] Problems& problems() noexcept { return m_problems; }
    /// How many nodes there are, each counted once.
    [[nodiscard]] std::size_t nodeCount() const noexcept { return m_records.count(); }
    /// A number that changes when places are added, removed, hidden or shown.
    [[nodiscard]] std::uint64_t structure() const noexcept { return m_structure; }
    /// A number that changes whenever something is drawn differently, or elsewhere in the tables, than before.
    [[nodiscard]] std::uint64_t revision() const noexcept { return m_revision; }
    /// The cost of all updates so far: nodes visited, places moved and keys compared.
    [[nodiscard]] std::uint64_t steps() const noexcept { return m_steps; }
    /// A number that changes with the lights and their transforms.
    [[nodiscard]] std::uint64_t lighting() const noexcept { return m_lighting; }

    /// The items below a node, in all its instances.
    [[nodiscard]] std::vector<Id> itemsBelow(const NxNode* node) const;
    /// The items below one instance of a node, given as the path of nodes from a child of the root.
    [[nodiscard]] std::vector<Id> itemsBelow(std::span<const NxNode* const> path) const;
    /// The nodes from a child of the root to the mesh of an item.
    [[nodiscard]] std::vector<NxNode*> pathOf(Id item) const;
    /// The items that a material, texture or complexity applies to, none for any other node.
    [[nodiscard]] std::vector<Id> itemsUsing(const NxNode* node) const;
    /// The same for one instance of the node, given as the path of nodes from a child of the root.
    [[nodiscard]] std::vector<Id> itemsUsing(std::span<const NxNode* const> path) const;
    /// The box around an item relative to `from`; a point near the item makes the box exact. Empty if the item is
    /// farther away than the largest float.
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
    /// The place above the scene's root.
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
    void followTexture(TextureRecord& texture);
    void followRoles();

    /// False when something was left out.
    bool fill(Id top, KeptPlaces* kept = nullptr);
    void refill(Id top);
    void refillAll();
    bool hasRoom();
    void reportCut();
    void fillFreeRoom();
    void visit(NxNode& node, std::vector<Filling>& stack);
    [[nodiscard]] Id lookOf(Filling& filling);
    void addTexture(NxTexture& texture, Filling& filling);
    void addLight(NxLight& light, Filling& filling);
    void addGroup(NxGroup& group, std::vector<Filling>& stack);
    void addMesh(NxMesh& mesh, Filling& filling);
    void empty(Id top);
    void removePlace(Id id);
    void removeItem(Id id);
    void move(Id top);
    void updateBox(Id item);
    [[nodiscard]] Matrix4d worldTransformIn(GroupRecord& group, const Matrix4d& parent);
    void inspectMesh(MeshRecord& mesh);
    void collect(Id top, std::vector<Id>& items) const;
    void destroyUnusedRecords();

    Listener m_listener;
    NxRef<NxNode> m_root;
    NodeRecords m_records;
    Looks m_looks{m_records};
    /// By their contents, so that a group that is filled again reuses its lists of lights.
    std::map<std::tuple<const LightList*, const LightRecord*, Id>, std::weak_ptr<const LightList>> m_lightLists;
    std::size_t m_lightListsToSweep
        = LightList::maxLights; // expired entries are removed when there are more entries than this
    TextureWatch m_hiddenTextures; // replaced by others before a mesh follows
    PlaceTable m_table;
    BoundsTree m_tree;
    NxNodeVisibility m_visibility;
    Problems m_problems;
    std::vector<NodeRecord*> m_pending; // changed since the latest update
    std::uint64_t m_structure = 0;
    std::uint64_t m_revision = 0;
    std::uint64_t m_lighting = 0;
    std::uint64_t m_steps = 0;
    std::size_t m_maxPlaces;
    bool m_isCut = false; // something was left out because there was no room
    bool m_isCutReported = false;
    bool m_areRolesChanged = false; // of textures that looks use
};

} // namespace meridane
