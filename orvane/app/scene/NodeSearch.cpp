#include "orvane/app/scene/NodeSearch.h"

#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxNode.h"

namespace orvane {

std::vector<NxNode*> findPath(const NxNode* top, const NxFieldContainer* wanted)
{
    meridane::NodeTraversal nodes(*top);
    while (const NxNode* const node = nodes.next()) {
        if (node == wanted)
            return nodes.path();
    }
    return {};
}

} // namespace orvane
