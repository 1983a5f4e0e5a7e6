// Creates the places of a scene: traverses the nodes in order and keeps track of the state that applies to each.

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/gl/places/detail/KeptPlaces.h"
#include "meridane/gl/places/detail/PlacedScene.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace meridane {

/// A group on the path from the top to the present node of the traversal.
struct PlacedScene::Filling {
    Id place = noId;
    std::span<NxNode* const> children;
    std::size_t next = 0;
    NxMaterial* material = nullptr;
    std::array<NxTexture*, NxTexture::roleCount> textures{}; // by role
    NxComplexity* complexity = nullptr;
    std::shared_ptr<const LightList> lights;
    /// Places and items that can be reused instead of created.
    KeptPlaces* kept = nullptr;
    /// The look with this state, which the traversal counts as used; `noId` until it is needed.
    Id look = noId;
};

// Groups and meshes that are still there with the same look are kept, with everything below them.
void PlacedScene::refill(Id top)
{
    ++m_structure;
    bool makesRoom = true;
    for (bool isCut = true; isCut && makesRoom;) { // what is removed may make room for what was left out
        KeptPlaces kept(m_table, top);
        isCut = !fill(top, &kept);
        makesRoom = false;
        for (Id id = kept.takeAnyPlace(); id != noId; id = kept.takeAnyPlace()) {
            empty(id);
            removePlace(id);
            makesRoom = true;
        }
        for (Id id = kept.takeAnyItem(); id != noId; id = kept.takeAnyItem()) {
            removeItem(id);
            makesRoom = true;
        }
        m_steps += kept.comparisons();
    }
}

bool PlacedScene::fill(Id top, KeptPlaces* kept)
{
    const Place& place = m_table.place(top);
    const Look& look = m_looks[place.look];
    NxNode* const root = m_root.get();
    std::vector<Filling> stack;
    Filling first;
    first.place = top;
    first.kept = kept;
    first.children = place.group == nullptr ? std::span(&root, 1) : shownChildren(place.group->group());
    first.look = place.look;
    first.lights = look.lights;
    const auto nodeOf = [](const NodeRecord* record) { return record == nullptr ? nullptr : record->node(); };
    first.material = static_cast<NxMaterial*>(nodeOf(look.material));
    for (std::size_t role = 0; role < NxTexture::roleCount; ++role)
        first.textures[role] = static_cast<NxTexture*>(nodeOf(look.textures[role]));
    first.complexity = static_cast<NxComplexity*>(nodeOf(look.complexity));
    m_looks.useAgain(first.look);
    stack.push_back(std::move(first));
    const bool wasCut = std::exchange(m_isCut, false);
    const std::uint64_t lastStep = m_steps + 4 * m_maxPlaces;
    while (!stack.empty()) {
        Filling& filling = stack.back();
        // Shared groups may also contain many nodes that have no places.
        const bool isTooLong = m_steps > lastStep && filling.kept == nullptr && filling.next < filling.children.size();
        if (isTooLong)
            reportCut();
        if (isTooLong || filling.next == filling.children.size()) {
            if (filling.look != noId)
                m_looks.release(filling.look);
            stack.pop_back();
            continue;
        }
        ++m_steps;
        visit(*filling.children[filling.next++], stack);
    }
    const bool isWhole = !m_isCut;
    m_isCut = m_isCut || wasCut;
    return isWhole;
}

bool PlacedScene::hasRoom()
{
    if (m_table.count() < m_maxPlaces)
        return true;
    m_isCut = true;
    reportCut();
    return false;
}

void PlacedScene::reportCut()
{
    if (std::exchange(m_isCutReported, true))
        return;
    const std::string text = "The scene has more than " + std::to_string(m_maxPlaces)
        + " places of groups and meshes; the others aren't drawn";
    NxDebugError::post(NxDebugError::Warning, VbString(text));
}

void PlacedScene::fillFreeRoom()
{
    if (!m_isCut || m_table.count() > m_maxPlaces / 4 * 3)
        return;
    refillAll();
}

void PlacedScene::refillAll()
{
    m_isCut = false;
    m_hiddenTextures.clear();
    empty(topPlace);
    fill(topPlace);
}

void PlacedScene::visit(NxNode& node, std::vector<Filling>& stack)
{
    Filling& filling = stack.back();
    const auto changeLook = [&](auto& part, NxNode& value) {
        part = static_cast<std::remove_reference_t<decltype(part)>>(&value);
        if (filling.look != noId)
            m_looks.release(std::exchange(filling.look, noId));
    };
    switch (kindOf(node)) {
    case NodeKind::Group:
        addGroup(static_cast<NxGroup&>(node), stack);
        break;
    case NodeKind::Mesh:
        addMesh(static_cast<NxMesh&>(node), filling);
        break;
    case NodeKind::Material:
        changeLook(filling.material, node);
        break;
    case NodeKind::Texture:
        addTexture(static_cast<NxTexture&>(node), filling);
        break;
    case NodeKind::Complexity:
        changeLook(filling.complexity, node);
        break;
    case NodeKind::Light:
        addLight(static_cast<NxLight&>(node), filling);
        break;
    case NodeKind::Other:
        break;
    }
}

Id PlacedScene::lookOf(Filling& filling)
{
    if (filling.look == noId) {
        Look look;
        if (filling.material != nullptr)
            look.material = &m_records.of<MaterialRecord>(*filling.material, *this);
        for (std::size_t role = 0; role < NxTexture::roleCount; ++role) {
            if (filling.textures[role] == nullptr)
                continue;
            look.textures[role] = &m_records.of<TextureRecord>(*filling.textures[role], *this);
            look.textures[role]->role = static_cast<NxTexture::Role>(role);
        }
        if (filling.complexity != nullptr)
            look.complexity = &m_records.of<ComplexityRecord>(*filling.complexity, *this);
        look.lights = filling.lights;
        filling.look = m_looks.use(look);
    }
    m_looks.useAgain(filling.look);
    return filling.look;
}

void PlacedScene::addTexture(NxTexture& texture, Filling& filling)
{
    NxTexture*& current = filling.textures[texture.effectiveRole()];
    // It has no record unless another look uses it, but with another role it would be used again.
    if (current != nullptr && current != &texture)
        m_hiddenTextures.watch(*current);
    current = &texture;
    if (filling.look != noId)
        m_looks.release(std::exchange(filling.look, noId));
}

void PlacedScene::addLight(NxLight& light, Filling& filling)
{
    auto& record = m_records.of<LightRecord>(light, *this);
    const bool isTooMany = filling.lights && filling.lights->count() >= LightList::maxLights;
    m_problems.note(record, Problem::TooManyLights, isTooMany, [] {
        return "more than " + std::to_string(LightList::maxLights)
            + " lights shine on what follows; this one is left out";
    });
    ++m_lighting;
    if (isTooMany)
        return;
    const Id worldTransform = m_table.place(filling.place).worldTransform;
    std::weak_ptr<const LightList>& known = m_lightLists[{filling.lights.get(), &record, worldTransform}];
    std::shared_ptr<const LightList> list = known.lock();
    if (!list) {
        list = std::make_shared<LightList>(filling.lights, record, worldTransform, m_records);
        known = list;
    }
    filling.lights = std::move(list);
    if (filling.look != noId)
        m_looks.release(std::exchange(filling.look, noId));
}

void PlacedScene::addGroup(NxGroup& group, std::vector<Filling>& stack)
{
    Filling& above = stack.back();
    auto& record = m_records.of<GroupRecord>(group, *this);
    if (above.kept != nullptr) {
        const Id look = lookOf(above);
        const Id id = above.kept->takePlace(record, look);
        m_looks.release(look);
        if (id != noId) {
            m_table.attachPlace(id);
            return;
        }
    }
    if (!hasRoom())
        return;
    NodeRecords::retain(record);
    // If it has other places, those may not have been updated to its children yet.
    if (record.firstPlace == noId)
        record.noteChildren();
    Place place;
    place.group = &record;
    place.parent = above.place;
    place.worldTransform = m_table.place(above.place).worldTransform;
    if (record.isTransform())
        place.worldTransform
            = m_table.worldTransforms.add(worldTransformIn(record, m_table.worldTransforms[place.worldTransform]));
    place.look = lookOf(above);
    Filling inner = above;
    inner.place = m_table.addPlace(place);
    inner.children = shownChildren(group);
    inner.next = 0;
    inner.kept = nullptr;
    m_looks.useAgain(inner.look);
    stack.push_back(std::move(inner));
}

void PlacedScene::addMesh(NxMesh& mesh, Filling& filling)
{
    auto& record = m_records.of<MeshRecord>(mesh, *this);
    if (filling.kept != nullptr) {
        const Id look = lookOf(filling);
        const Id id = filling.kept->takeItem(record, look);
        m_looks.release(look);
        if (id != noId) {
            m_table.attachItem(id);
            return;
        }
    }
    if (!hasRoom())
        return;
    NodeRecords::retain(record);
    if (!record.isInspected)
        inspectMesh(record);
    Item item;
    item.mesh = &record;
    item.place = filling.place;
    item.look = lookOf(filling);
    updateBox(m_table.addItem(item));
}

} // namespace meridane
