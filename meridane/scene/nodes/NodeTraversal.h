#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <span>
#include <unordered_set>
#include <vector>

namespace orvane {

/// Walks the nodes of a scene in the order in which a scene file tells them: each ahead of its children, one that
/// stands in several places at the first of them. A scene that was written and read again has the same order.
///
/// Which nodes stand where must not change meanwhile.
class NodeOrder {
public:
    /// `scene` is the group that holds the top nodes; it is no part of the walk itself.
    explicit NodeOrder(const NxGroup& scene);

    /// The next node; null behind the last one.
    [[nodiscard]] NxNode* next();

private:
    /// A group whose children are being walked.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };

    std::vector<Level> m_levels;
    std::unordered_set<const NxNode*> m_visited; // of the nodes with several references
};

} // namespace orvane
