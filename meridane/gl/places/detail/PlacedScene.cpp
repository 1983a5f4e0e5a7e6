#include "meridane/gl/places/detail/PlacedScene.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/check/NxSceneProblem.h"

#include <algorithm>
#include <utility>

namespace meridane {
PlacedScene::PlacedScene(Listener listener, std::size_t maxPlaces)
    : m_listener(std::move(listener))
    , m_hiddenTextures([this] { m_listener.changed(); })
    , m_maxPlaces(maxPlaces)
{
    setRoot(nullptr);
}

PlacedScene::~PlacedScene()
{
    setRoot(nullptr);
    empty(topPlace);
    m_looks.release(m_table.place(topPlace).look);
    destroyUnusedRecords();
}

void PlacedScene::setRoot(NxNode* root)
{
    ++m_revision;
    if (m_root) {
        m_tree.clear();
        empty(topPlace);
    }
    m_problems.forget();
    m_visibility = NxNodeVisibility();
    m_isCut = false;
    m_isCutReported = false;
    m_areRolesChanged = false;
    m_hiddenTextures.clear();
    m_root = root;
    if (m_table.count() == 0) {
        Place top;
        top.worldTransform = m_table.worldTransforms.add(Matrix4d());
        top.look = m_looks.use(Look());
        m_table.addPlace(top);
    }
    if (m_root)
        fill(topPlace);
    followPending(); // nodes that were also in the previous scene
    destroyUnusedRecords();
}

void PlacedScene::nodeTouched(NodeRecord& record)
{
    m_pending.push_back(&record);
    record.isPending = true;
}

void PlacedScene::nodeChanged(NodeRecord& /*record*/)
{
    m_listener.changed();
}

void PlacedScene::nodeDied(NodeRecord& record)
{
    m_records.forgetNode(record);
}

void PlacedScene::update()
{
    if (m_pending.empty() && !m_hiddenTextures.isChanged())
        return;
    ++m_revision;
    followPending();
    followRoles();
    fillFreeRoom();
    destroyUnusedRecords();
}

void PlacedScene::followPending()
{
    const std::vector<NodeRecord*> pending = std::exchange(m_pending, {});
    for (NodeRecord* record : pending)
        record->isPending = false;
    const auto isNeeded = [](const NodeRecord& record) { return record.node() != nullptr && record.uses > 0; };
    // Lists of children first: nodes that were removed from groups needn't be updated, and may be destroyed.
    for (NodeRecord* record : pending) {
        if (record->kind() == NodeKind::Group && isNeeded(*record))
            followChildren(static_cast<GroupRecord&>(*record));
    }
    for (NodeRecord* record : pending) {
        if (isNeeded(*record))
            follow(*record);
    }
}

void PlacedScene::follow(NodeRecord& record)
{
    switch (record.kind()) {
    case NodeKind::Group:
        followTransform(static_cast<GroupRecord&>(record));
        break;
    case NodeKind::Mesh:
        followMesh(static_cast<MeshRecord&>(record));
        break;
    case NodeKind::Material:
        static_cast<MaterialRecord&>(record).update();
        break;
    case NodeKind::Complexity:
        static_cast<ComplexityRecord&>(record).update();
        break;
    case NodeKind::Texture:
        followTexture(static_cast<TextureRecord&>(record));
        break;
    case NodeKind::Light:
        ++m_lighting;
        break;
    case NodeKind::Other:
        break;
    }
}

void PlacedScene::followChildren(GroupRecord& group)
{
    if (!group.noteChildren())
        return;
    for (Id id = group.firstPlace; id != noId; id = m_table.place(id).nextOfGroup)
        refill(id);
}

void PlacedScene::followTransform(GroupRecord& group)
{
    if (!group.isTransform())
        return;
    for (Id id = group.firstPlace; id != noId; id = m_table.place(id).nextOfGroup)
        move(id);
}

void PlacedScene::followTexture(TextureRecord& texture)
{
    texture.isStale = true;
    m_areRolesChanged = m_areRolesChanged || texture.texture()->effectiveRole() != texture.role;
}

// The role is seldom changed, and which groups have the texture isn't known.
void PlacedScene::followRoles()
{
    if (std::exchange(m_areRolesChanged, false) || m_hiddenTextures.isChanged())
        refillAll();
}

void PlacedScene::followMesh(MeshRecord& mesh)
{
    const NxBounds before = mesh.shape.bounds;
    inspectMesh(mesh);
    if (mesh.shape.bounds == before)
        return;
    for (Id id = mesh.firstItem; id != noId; id = m_table.item(id).nextOfMesh)
        updateBox(id);
}

void PlacedScene::inspectMesh(MeshRecord& mesh)
{
    mesh.shape = inspect(*mesh.mesh(), mesh, m_problems);
    mesh.isInspected = true;
    mesh.isStale = true;
    mesh.areLevelsStale = true;
}

Matrix4d PlacedScene::worldTransformIn(GroupRecord& group, const Matrix4d& parent)
{
    const Matrix4d own = localTransformOf(group.group());
    m_problems.note(group, Problem::Transform, !inverse(narrowed(own)).has_value(),
        [] { return problemText(NxProblemKind::SingularMatrix); });
    return multiply(own, parent);
}

// Updates the places below a changed transform.
void PlacedScene::move(Id top)
{
    std::vector<Id> waiting{top};
    while (!waiting.empty()) {
        ++m_steps;
        const Place& place = m_table.place(waiting.back());
        waiting.pop_back();
        if (place.group->isTransform()) {
            const Id above = m_table.place(place.parent).worldTransform;
            const Matrix4d matrix = worldTransformIn(*place.group, m_table.worldTransforms[above]);
            if (matrix == m_table.worldTransforms[place.worldTransform])
                continue;
            m_table.worldTransforms[place.worldTransform] = matrix;
            ++m_lighting;
        }
        for (Id id = place.firstItem; id != noId; id = m_table.item(id).nextInPlace)
            updateBox(id);
        for (Id id = place.firstChild; id != noId; id = m_table.place(id).nextSibling)
            waiting.push_back(id);
    }
}

NxBounds PlacedScene::boundsOf(const Item& item, const VbVec3d& from) const
{
    const NxBounds& own = item.mesh->shape.bounds;
    NxBounds bounds;
    if (own.isEmpty())
        return bounds;
    const Matrix4d& worldTransform = m_table.worldTransformOf(item);
    for (unsigned int corner = 0; corner < 8; ++corner) {
        const VbVec3f point((corner & 1U) != 0 ? own.max[0] : own.min[0], (corner & 2U) != 0 ? own.max[1] : own.min[1],
            (corner & 4U) != 0 ? own.max[2] : own.min[2]);
        const VbVec3f place = narrowed(subtract(transformPoint(point, worldTransform), from));
        if (!isFinite(place))
            return {};
        bounds.include(place);
    }
    return bounds;
}

void PlacedScene::empty(Id top)
{
    ++m_structure;
    std::vector<Id> waiting{top};
    while (!waiting.empty()) {
        const Id id = waiting.back();
        waiting.pop_back();
        for (Id item = m_table.place(id).firstItem; item != noId;) {
            const Id next = m_table.item(item).nextInPlace;
            removeItem(item);
            item = next;
        }
        for (Id child = m_table.place(id).firstChild; child != noId; child = m_table.place(child).nextSibling)
            waiting.push_back(child);
        Place& place = m_table.place(id);
        place.firstItem = noId;
        place.firstChild = noId;
        if (id != top)
            removePlace(id);
    }
}

void PlacedScene::removePlace(Id id)
{
    const Place place = m_table.place(id);
    m_looks.release(place.look);
    if (place.group->isTransform())
        m_table.worldTransforms.remove(place.worldTransform);
    m_table.removePlace(id);
    m_records.release(*place.group);
}

void PlacedScene::removeItem(Id id)
{
    const Item item = m_table.item(id);
    m_tree.remove(id);
    m_table.removeItem(id);
    m_looks.release(item.look);
    m_records.release(*item.mesh);
}

std::vector<Id> PlacedScene::itemsBelow(const NxNode* node) const
{
    std::vector<Id> items;
    const NodeRecord* const record = m_records.find(node);
    if (record == nullptr)
        return items;
    if (record->kind() == NodeKind::Group) {
        const Id first = static_cast<const GroupRecord*>(record)->firstPlace;
        for (Id id = first; id != noId; id = m_table.place(id).nextOfGroup)
            collect(id, items);
    } else if (record->kind() == NodeKind::Mesh) {
        const Id first = static_cast<const MeshRecord*>(record)->firstItem;
        for (Id id = first; id != noId; id = m_table.item(id).nextOfMesh)
            items.push_back(id);
    }
    return items;
}

std::vector<Id> PlacedScene::itemsBelow(std::span<const NxNode* const> path) const
{
    std::vector<Id> items;
    Id place = m_table.place(topPlace).firstChild;
    for (std::size_t step = 0; step < path.size() && place != noId; ++step) {
        if (step + 1 == path.size()) {
            for (Id id = m_table.place(place).firstItem; id != noId; id = m_table.item(id).nextInPlace) {
                if (m_table.item(id).mesh->node() == path[step])
                    items.push_back(id);
            }
        }
        place = m_table.place(place).firstChild;
        while (place != noId && m_table.place(place).group->node() != path[step])
            place = m_table.place(place).nextSibling;
    }
    if (place != noId && items.empty())
        collect(place, items);
    return items;
}

std::vector<Id> PlacedScene::itemsUsing(const NxNode* node) const
{
    const NodeRecord* const record = m_records.find(node);
    if (record == nullptr || record->kind() == NodeKind::Group || record->kind() == NodeKind::Mesh)
        return {};
    std::vector<Id> items;
    collect(topPlace, items);
    std::erase_if(items, [&](Id item) {
        const auto used = m_looks[m_table.item(item).look].records();
        return std::find(used.begin(), used.end(), record) == used.end();
    });
    return items;
}

std::vector<Id> PlacedScene::itemsUsing(std::span<const NxNode* const> path) const
{
    std::vector<Id> items = itemsUsing(path.back());
    if (path.size() < 2 || items.empty())
        return items;
    std::vector<Id> group = itemsBelow(path.first(path.size() - 1));
    std::sort(group.begin(), group.end());
    std::erase_if(items, [&group](Id item) { return !std::binary_search(group.begin(), group.end(), item); });
    return items;
}

std::vector<NxNode*> PlacedScene::pathOf(Id item) const
{
    std::vector<NxNode*> path{m_table.item(item).mesh->node()};
    const Id root = m_table.place(topPlace).firstChild;
    for (Id id = m_table.item(item).place; id != root && id != topPlace; id = m_table.place(id).parent)
        path.push_back(m_table.place(id).group->node());
    std::reverse(path.begin(), path.end());
    return path;
}

void PlacedScene::collect(Id top, std::vector<Id>& items) const
{
    std::vector<Id> waiting{top};
    while (!waiting.empty()) {
        const Place& place = m_table.place(waiting.back());
        waiting.pop_back();
        for (Id id = place.firstItem; id != noId; id = m_table.item(id).nextInPlace)
            items.push_back(id);
        for (Id id = place.firstChild; id != noId; id = m_table.place(id).nextSibling)
            waiting.push_back(id);
    }
}

void PlacedScene::destroyUnusedRecords()
{
    if (m_lightLists.size() > m_lightListsToSweep) {
        std::erase_if(m_lightLists, [](const auto& entry) { return entry.second.expired(); });
        m_lightListsToSweep = 2 * m_lightLists.size() + LightList::maxLights;
    }
    m_records.destroyUnused([this](NodeRecord& record) {
        if (record.isPending) // changed by the handler of a reported problem
            std::erase(m_pending, &record);
        if (record.kind() == NodeKind::Mesh)
            m_listener.releaseMesh(static_cast<MeshRecord&>(record));
        else if (record.kind() == NodeKind::Texture)
            m_listener.releaseTexture(static_cast<TextureRecord&>(record));
    });
}

std::size_t PlacedScene::bytes() const noexcept
{
    return m_table.bytes() + m_tree.bytes() + m_looks.bytes() + m_records.bytes();
}

} // namespace meridane
