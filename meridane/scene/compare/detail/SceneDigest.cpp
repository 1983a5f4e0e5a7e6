#include "meridane/scene/compare/detail/SceneDigest.h"

#include "meridane/scene/compare/detail/HashMix.h"
#include "meridane/scene/fields/NxField.h"

#include <algorithm>

namespace meridane {

namespace {

/// How many values of a field are hashed.
constexpr std::size_t hashedValues = 64;

} // namespace

SceneDigest::SceneDigest(NxGroup& scene)
{
    open(&scene, none);
}

bool SceneDigest::step(std::size_t budget)
{
    for (; budget > 0 && !m_open.empty(); --budget) {
        OpenNode& top = m_open.back();
        if (top.nextChild == m_nodes[top.number].slotCount)
            close();
        else
            visitChild(top);
    }
    return !m_open.empty();
}

std::vector<int> SceneDigest::placesOf(std::uint32_t slot) const
{
    std::vector<int> places;
    for (; slot != none; slot = m_nodes[m_slots[slot].group].home)
        places.push_back(static_cast<int>(placeOf(slot)));
    std::reverse(places.begin(), places.end());
    return places;
}

void SceneDigest::open(NxNode* node, std::uint32_t home)
{
    const std::uint32_t number = nodeCount();
    const auto children = static_cast<std::uint32_t>(node->getChildren().size());
    bool hasContent = children > 0;
    const std::uint64_t hash = number == 0 ? 0 : hashFields(*node, hasContent);
    m_nodes.push_back({node, 0, hash, slotCount(), children, home, 0, hasContent});
    m_slots.resize(m_slots.size() + children, {none, number});
    m_open.push_back({number, 0});
}

void SceneDigest::close()
{
    const std::uint32_t number = m_open.back().number;
    m_open.pop_back();
    Node& node = m_nodes[number];
    node.end = nodeCount();
    node.hash = mixHash(node.contentHash, hashOf(node.node->getName().view()));
    if (!m_open.empty())
        addToHash(m_open.back().number, number);
}

void SceneDigest::visitChild(OpenNode& parent)
{
    const std::uint32_t group = parent.number;
    const std::uint32_t place = parent.nextChild++;
    const std::uint32_t slot = m_nodes[group].firstSlot + place;
    NxNode* const child = m_nodes[group].node->getChildren()[place];
    // Each use holds a reference, so most nodes aren't looked up.
    if (child->getRefCount() > 1) {
        const auto [known, isNew] = m_shared.try_emplace(child, nodeCount());
        m_slots[slot].node = known->second;
        if (!isNew)
            return addToHash(group, known->second);
    }
    m_slots[slot].node = nodeCount();
    open(child, slot);
}

void SceneDigest::addToHash(std::uint32_t group, std::uint32_t child)
{
    m_nodes[group].contentHash = mixHash(m_nodes[group].contentHash, m_nodes[child].hash);
}

std::uint64_t SceneDigest::hashFields(NxNode& node, bool& hasContent)
{
    std::uint64_t hash = hashClass(node);
    const NxFieldData* const data = node.getFieldData();
    for (int i = 0; i < data->getNumFields(); ++i) {
        const NxField& field = *data->getField(&node, i);
        if (!field.isIgnored() && data->getDefault(i)->isSame(field))
            continue;
        hasContent = true;
        m_text.clear();
        std::size_t position = 0;
        field.writeText(m_text, position, hashedValues);
        const auto place = static_cast<std::uint64_t>(i);
        hash = mixHash(mixHash(hash, 2 * place + (field.isIgnored() ? 1 : 0)), hashOf(m_text) ^ field.valueBytes());
    }
    for (const NxFieldContainer::UnknownField& field : node.getUnknownFields()) {
        hasContent = true;
        hash = mixHash(mixHash(hash, hashOf(field.name)), hashOf(field.text) + (field.ignored ? 1 : 0));
    }
    return hash;
}

std::uint64_t SceneDigest::hashClass(const NxNode& node)
{
    // Consecutive nodes often have the same class. The name of an unknown class belongs to its node.
    const char* const name = node.getClassName();
    if (name != m_lastClass) {
        m_lastClass = name;
        m_lastClassHash = hashOf(name);
    }
    return m_lastClassHash;
}

} // namespace meridane
