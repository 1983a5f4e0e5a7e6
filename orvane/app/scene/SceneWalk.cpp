#include "orvane/app/scene/SceneWalk.h"

#include "meridane/scene/nodes/NxNode.h"

SceneWalk::SceneWalk(const NxNode& top)
    : m_levels{{top.getChildren()}}
{
}

NxNode* SceneWalk::next()
{
    while (!m_levels.empty() && m_levels.back().next == m_levels.back().children.size())
        m_levels.pop_back();
    if (m_levels.empty())
        return nullptr;
    Level& level = m_levels.back();
    return level.children[level.next++];
}

void SceneWalk::enter()
{
    const Level& level = m_levels.back();
    const std::span<NxNode* const> children = level.children[level.next - 1]->getChildren();
    if (!children.empty())
        m_levels.push_back({children});
}

void SceneWalk::enterOnce()
{
    const Level& level = m_levels.back();
    const NxNode* const node = level.children[level.next - 1];
    // Leaves, which are most of a scene, needn't be remembered.
    if (!node->getChildren().empty() && m_entered.insert(node).second)
        enter();
}

std::vector<NxNode*> SceneWalk::path() const
{
    std::vector<NxNode*> nodes;
    nodes.reserve(m_levels.size());
    for (const Level& level : m_levels)
        nodes.push_back(level.children[level.next - 1]);
    return nodes;
}

std::vector<int> SceneWalk::indices() const
{
    std::vector<int> indices;
    indices.reserve(m_levels.size());
    for (const Level& level : m_levels)
        indices.push_back(static_cast<int>(level.next) - 1);
    return indices;
}
