#include "orvane/app/scene/NodeSearch.h"

#include "meridane/scene/nodes/NxNode.h"

#include <span>
#include <unordered_set>

namespace orvane {

std::vector<NxNode*> findPath(const NxNode* top, const NxFieldContainer* wanted)
{
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };
    std::vector<Level> levels{{top->getChildren()}};
    std::vector<NxNode*> path;
    std::unordered_set<const NxNode*> seen;
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.children.size()) {
            levels.pop_back();
            if (!path.empty())
                path.pop_back();
            continue;
        }
        NxNode* node = level.children[level.next++];
        if (node == wanted) {
            path.push_back(node);
            return path;
        }
        const std::span<NxNode* const> children = node->getChildren();
        // Only a group can be worth a second visit, so leaves, which are most of a scene, aren't remembered.
        if (!children.empty() && seen.insert(node).second) {
            path.push_back(node);
            levels.push_back({children});
        }
    }
    return {};
}

} // namespace orvane
