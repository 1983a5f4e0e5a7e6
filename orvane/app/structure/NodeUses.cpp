#include "orvane/app/structure/NodeUses.h"

#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

int NodeUses::count(const NxNode& node)
{
    if (!m_counts) {
        m_counts.emplace();
        meridane::NodeTraversal uses(m_scene);
        while (const NxNode* const use = uses.nextUse()) {
            if (use->getRefCount() > 1)
                ++(*m_counts)[use];
        }
    }
    const auto found = m_counts->find(&node);
    return found == m_counts->end() ? 1 : found->second;
}
