#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <span>
#include <unordered_set>
#include <vector>

namespace meridane {

/// Visits the nodes of a scene in the order of a scene file: parents before their children. A scene that was written
/// and read again has the same order. The structure of the scene must not change meanwhile.
class NodeTraversal {
public:
    /// `scene` is the group that holds the top nodes; it isn't visited itself.
    explicit NodeTraversal(const NxGroup& scene);

    /// The next node, each one at its first use only; null after the last one.
    [[nodiscard]] NxNode* next();
    /// The next use of a node: a node that is in several places comes in each of them, its children only after the
    /// first. Null after the last one.
    [[nodiscard]] NxNode* nextUse();
    /// Whether the latest node was returned for the first time.
    [[nodiscard]] bool isFirstUse() const noexcept { return m_isFirstUse; }
    /// The depth of the latest node; 1 for a top node.
    [[nodiscard]] std::size_t depth() const noexcept { return m_depth; }

private:
    /// A group whose children are being visited.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };

    std::vector<Level> m_levels;
    std::unordered_set<const NxNode*> m_visited; // of the nodes with several references
    std::size_t m_depth = 0;
    bool m_isFirstUse = false;
};

} // namespace meridane
