#include "meridane/scene/file/detail/SceneSharing.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <algorithm>

namespace meridane {

namespace {

constexpr char labelMark = '#'; // before the number of a label

} // namespace

SceneSharing::SceneSharing(const NxGroup* scene)
    : m_scene(scene)
    , m_traversal(*scene)
{
}

bool SceneSharing::step(std::size_t budget)
{
    for (; budget > 0 && m_phase != Phase::Done; --budget) {
        if (NxNode* const node = m_traversal.nextUse(); node != nullptr)
            visit(node);
        else if (m_phase == Phase::Count)
            finishCount();
        else
            assignLabels();
    }
    return m_phase != Phase::Done;
}

void SceneSharing::visit(NxNode* node)
{
    if (!m_traversal.isFirstUse()) {
        if (m_phase == Phase::Count && m_shared.try_emplace(node).second)
            m_sharedInOrder.push_back(node);
        return;
    }
    m_depth = std::max(m_depth, m_traversal.depth());
    if (m_phase == Phase::Count)
        ++m_nodeCount;
    else
        countName(node);
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
    m_traversal = NodeTraversal(*m_scene);
    m_phase = Phase::Names;
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
