#include "orvane/app/scene/NodeSearch.h"

#include "orvane/app/scene/SceneWalk.h"

#include "meridane/scene/nodes/NxNode.h"

namespace orvane {

std::vector<NxNode*> findPath(const NxNode* top, const NxFieldContainer* wanted)
{
    SceneWalk walk(*top);
    while (const NxNode* const node = walk.next()) {
        if (node == wanted)
            return walk.path();
        walk.enterOnce();
    }
    return {};
}

} // namespace orvane
