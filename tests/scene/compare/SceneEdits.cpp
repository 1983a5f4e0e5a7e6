#include "scene/compare/SceneEdits.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>

SceneEdits::SceneEdits(unsigned int seed)
    : m_random(seed)
{
    m_groups.push_back(m_scene.get());
    addNodes(60);
    addUses(5);
    notePaths(m_scene.get(), {});
}

void SceneEdits::addNodes(int count)
{
    for (int i = 0; i < count; ++i) {
        NxNode* const node = makeNode();
        m_nodes.emplace_back(node);
        randomGroup()->addChild(node);
        if (auto* const group = dynamic_cast<NxGroup*>(node))
            m_groups.push_back(group);
    }
}

// Uses in a second place; neither these nor what holds them moves.
void SceneEdits::addUses(int count)
{
    for (int i = 0; i < count; ++i) {
        NxNode* const node = randomNode();
        NxGroup* const group = randomGroup();
        if (node == group || !node->getChildren().empty() || group->findChild(node) >= 0 || node->getRefCount() > 2)
            continue;
        for (const NxNode* above = placeOf(node).group; above != m_scene.get(); above = placeOf(above).group)
            m_held.insert(above);
        for (const NxNode* above = group; above != m_scene.get(); above = placeOf(above).group)
            m_held.insert(above);
        m_held.insert(node);
        group->addChild(node);
    }
}

void SceneEdits::notePaths(NxGroup* group, const std::string& path)
{
    for (NxNode* const child : group->getChildren()) {
        const std::string childPath = path + '/' + std::string(child->getName().view());
        if (m_paths.try_emplace(child, childPath).second) {
            if (auto* const childGroup = dynamic_cast<NxGroup*>(child))
                notePaths(childGroup, childPath);
        }
    }
}

NxNode* SceneEdits::makeNode()
{
    NxNode* node = nullptr;
    switch (m_random.below(6)) {
    case 0:
        node = new NxGroup;
        break;
    case 1:
        node = new NxTransform;
        break;
    case 2:
        node = new NxSwitch;
        break;
    case 3:
        node = new NxMaterial;
        break;
    default:
        node = new NxMesh;
        break;
    }
    const std::string number = std::to_string(m_number++);
    node->setName(VbString(std::string_view("n" + number)));
    node->addUnknownField({"id", number});
    return node;
}

NxNode* SceneEdits::randomNode()
{
    return m_nodes[m_random.below(m_nodes.size())].get();
}

NxGroup* SceneEdits::randomGroup()
{
    return m_groups[m_random.below(m_groups.size())];
}

SceneEdits::Place SceneEdits::placeOf(const NxNode* node)
{
    for (NxGroup* const group : m_groups) {
        if (const int index = group->findChild(node); index >= 0)
            return {group, index};
    }
    return {m_scene.get(), -1};
}

std::string SceneEdits::pathOf(const NxNode* node)
{
    std::string path;
    for (const NxNode* above = node; above != m_scene.get(); above = placeOf(above).group)
        path = '/' + std::string(above->getName().view()) + path;
    return path;
}

// Whether the node and what is in it can be taken from its place.
bool SceneEdits::isFree(NxNode* node) const
{
    if (m_held.contains(node))
        return false;
    const auto children = node->getChildren();
    return std::all_of(children.begin(), children.end(), [this](NxNode* child) { return isFree(child); });
}

void SceneEdits::hold(NxNode* node)
{
    for (const NxNode* above = node; above != m_scene.get(); above = placeOf(above).group)
        m_held.insert(above);
}

void SceneEdits::holdAll(NxNode* node)
{
    m_held.insert(node);
    for (NxNode* const child : node->getChildren())
        holdAll(child);
}

void SceneEdits::edit(int count)
{
    constexpr void (SceneEdits::*edits[])() = {&SceneEdits::setValue, &SceneEdits::setIgnored, &SceneEdits::rename,
        &SceneEdits::remove, &SceneEdits::add, &SceneEdits::move, &SceneEdits::reorder, &SceneEdits::use};
    for (int i = 0; i < count; ++i)
        (this->*edits[m_random.below(std::size(edits))])();
    for (const auto& [node, group] : m_added) {
        const std::string path = (group == m_scene.get() ? std::string() : pathOf(group)) + '/';
        const bool isUse = m_paths.contains(node);
        m_expected
            += QString::fromStdString((isUse ? "use added " : "added ") + path + std::string(node->getName().view()));
    }
    m_expected.sort();
}

QStringList SceneEdits::expected() const
{
    return m_expected;
}

void SceneEdits::setValue()
{
    NxNode* const node = randomNode();
    auto* const mesh = dynamic_cast<NxMesh*>(node);
    if (mesh == nullptr || m_held.contains(node))
        return;
    hold(node);
    mesh->positions.setValues(std::vector<VbVec3f>(1, VbVec3f(static_cast<float>(m_number++), 0, -0.F)));
    m_expected += QString::fromStdString("value " + m_paths.at(node) + ".positions");
}

void SceneEdits::setIgnored()
{
    NxNode* const node = randomNode();
    const std::vector<NxField*> fields = node->getFields();
    if (fields.empty() || m_held.contains(node))
        return;
    hold(node);
    NxField* const field = fields[m_random.below(fields.size())];
    field->setIgnored(1);
    m_expected += QString::fromStdString("ignored " + m_paths.at(node) + '.' + node->getFieldName(field).getString());
}

void SceneEdits::rename()
{
    NxNode* const node = randomNode();
    if (!isFree(node))
        return;
    hold(node);
    holdAll(node);
    node->setName(VbString(std::string_view("r" + std::to_string(m_number++))));
    m_expected += QString::fromStdString("renamed " + m_paths.at(node));
}

void SceneEdits::remove()
{
    NxNode* const node = randomNode();
    if (!isFree(node))
        return;
    holdAll(node);
    const Place place = placeOf(node);
    hold(place.group);
    place.group->removeChild(place.index);
    m_expected += QString::fromStdString("removed " + m_paths.at(node));
}

void SceneEdits::add()
{
    NxGroup* const group = randomGroup();
    if (group != m_scene.get() && (m_held.contains(group) || placeOf(group).index < 0))
        return;
    hold(group);
    NxNode* const node = makeNode();
    group->insertChild(node, static_cast<int>(m_random.below(group->getChildren().size() + 1)));
    m_added.emplace_back(node, group);
}

void SceneEdits::move()
{
    NxNode* const node = randomNode();
    NxGroup* const group = randomGroup();
    const Place place = placeOf(node);
    if (!isFree(node) || group == place.group || (group != m_scene.get() && m_held.contains(group)))
        return;
    const NxRef<NxNode> alive(node);
    hold(node);
    holdAll(node);
    if (!group->insertChild(node, static_cast<int>(m_random.below(group->getChildren().size() + 1))))
        return;
    hold(group);
    place.group->removeChild(place.index);
    m_expected += QString::fromStdString("moved " + m_paths.at(node));
}

void SceneEdits::reorder()
{
    NxGroup* const group = randomGroup();
    const auto children = group->getChildren();
    const auto isHeld = [this](const NxNode* node) { return m_held.contains(node); };
    if (children.size() < 3 || (group != m_scene.get() && isHeld(group))
        || std::any_of(children.begin(), children.end(), isHeld))
        return;
    hold(group);
    for (NxNode* const child : children)
        m_held.insert(child);
    const NxRef<NxNode> first(group->getChild(0));
    group->removeChild(0);
    group->addChild(first.get());
    m_expected += QString::fromStdString("reordered " + m_paths.at(first.get()));
}

void SceneEdits::use()
{
    NxNode* const node = randomNode();
    NxGroup* const group = randomGroup();
    const bool isInScene = group == m_scene.get() || (!m_held.contains(group) && placeOf(group).index >= 0);
    if (node == group || m_held.contains(node) || !node->getChildren().empty() || group->findChild(node) >= 0
        || !isInScene)
        return;
    hold(node);
    hold(group);
    group->addChild(node);
    m_added.emplace_back(node, group);
}
