#include "meridane/scene/file/detail/SceneSharing.h"

#include <algorithm>

namespace meridane {

namespace {

constexpr char labelMark = '#'; // in front of the number of a label

} // namespace

SceneSharing::SceneSharing(const NxGroup* scene)
    : m_scene(scene)
{
    start(Phase::Count);
}

void SceneSharing::start(Phase phase)
{
    m_phase = phase;
    m_visited.clear();
    m_levels.push_back({m_scene->getChildren()});
}

bool SceneSharing::step(std::size_t budget)
{
    for (; budget > 0 && m_phase != Phase::Done; --budget) {
        Level& level = m_levels.back();
        if (level.next < level.children.size()) {
            visit(level.children[level.next++]);
            continue;
        }
        m_levels.pop_back();
        if (!m_levels.empty())
            continue;
        if (m_phase == Phase::Count)
            finishCount();
        else
            assignLabels();
    }
    return m_phase != Phase::Done;
}

void SceneSharing::visit(NxNode* node)
{
    if (!isFirstVisit(node)) {
        if (m_phase == Phase::Count && m_shared.try_emplace(node).second)
            m_sharedInOrder.push_back(node);
        return;
    }
    m_depth = std::max(m_depth, m_levels.size());
    if (m_phase == Phase::Count)
        ++m_nodeCount;
    else
        countName(node);
    if (const auto children = node->getChildren(); !children.empty())
        m_levels.push_back({children});
}

bool SceneSharing::isFirstVisit(const NxNode* node)
{
    // Each place holds a reference, so most nodes need no look into the table.
    return node->getRefCount() == 1 || m_visited.insert(node).second;
}

void SceneSharing::finishCount()
{
    if (m_shared.empty()) {
        m_phase = Phase::Done;
        return;
    }
    for (auto& [node, shared] : m_shared) {
        shared.name = node->getName().view();
        m_nameCounts[shared.name] = 0;
    }
    start(Phase::Names);
}

void SceneSharing::countName(NxNode* node)
{
    const std::string_view name = node->getName().view();
    if (const auto place = m_nameCounts.find(name); place != m_nameCounts.end())
        ++place->second;
    if (name.starts_with(labelMark))
        m_labelLikeNames.insert(name);
}

void SceneSharing::assignLabels()
{
    std::size_t number = 0;
    for (const NxNode* node : m_sharedInOrder) {
        SharedNode& shared = m_shared.at(node);
        if (!shared.name.empty() && m_nameCounts.at(shared.name) == 1)
            continue;
        do
            shared.label = labelMark + std::to_string(++number);
        while (m_labelLikeNames.contains(shared.label));
    }
    m_phase = Phase::Done;
}

SceneSharing::SharedNode* SceneSharing::find(const NxNode* node)
{
    const auto place = node->getRefCount() == 1 ? m_shared.end() : m_shared.find(node);
    return place == m_shared.end() ? nullptr : &place->second;
}

} // namespace meridane
