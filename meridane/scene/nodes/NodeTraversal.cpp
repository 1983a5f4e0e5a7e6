#include "meridane/scene/nodes/NodeTraversal.h"

namespace meridane {

NodeTraversal::NodeTraversal(const NxGroup& scene)
{
    m_levels.push_back({scene.getChildren()});
}

NxNode* NodeTraversal::next()
{
    NxNode* node = nextUse();
    while (node != nullptr && !m_isFirstUse)
        node = nextUse();
    return node;
}

NxNode* NodeTraversal::nextUse()
{
    while (!m_levels.empty()) {
        Level& level = m_levels.back();
        if (level.next == level.children.size()) {
            m_levels.pop_back();
            continue;
        }
        NxNode* const node = level.children[level.next++];
        m_depth = m_levels.size();
        // Each use holds a reference, so most nodes aren't looked up.
        m_isFirstUse = node->getRefCount() == 1 || m_visited.insert(node).second;
        if (!m_isFirstUse)
            return node;
        if (const auto children = node->getChildren(); !children.empty())
            m_levels.push_back({children});
        return node;
    }
    return nullptr;
}

} // namespace meridane
