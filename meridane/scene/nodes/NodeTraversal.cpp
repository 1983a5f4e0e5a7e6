#include "meridane/scene/nodes/NodeTraversal.h"

namespace orvane {

NodeOrder::NodeOrder(const NxGroup& scene)
{
    m_levels.push_back({scene.getChildren()});
}

NxNode* NodeOrder::next()
{
    while (!m_levels.empty()) {
        Level& level = m_levels.back();
        if (level.next == level.children.size()) {
            m_levels.pop_back();
            continue;
        }
        NxNode* const node = level.children[level.next++];
        // Each place holds a reference, so most nodes need no look into the table.
        if (node->getRefCount() > 1 && !m_visited.insert(node).second)
            continue;
        if (const auto children = node->getChildren(); !children.empty())
            m_levels.push_back({children});
        return node;
    }
    return nullptr;
}

} // namespace orvane
