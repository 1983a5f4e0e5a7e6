#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <vector>

namespace meridane {

/// Some children of a group, in one of the places that the group has in a scene. The nodes must be alive.
struct NodeRows {
    std::vector<NxGroup*> path; ///< from the group that holds the top nodes down to the group of the children
    std::vector<int> places; ///< for each group of the path but the first its index in the group above
    std::vector<int> rows; ///< the indices of the children, rising, each once

    /// The group of the children, the last one of the path, which must not be empty.
    [[nodiscard]] NxGroup& group() const { return *path.back(); }
    /// The first of the children; there must be one.
    [[nodiscard]] NxNode& first() const { return *group().getChild(rows.front()); }
};

/// Children of several groups, such as a selection.
using NodeSet = std::vector<NodeRows>;

/// A child of one of the groups of a set.
struct SetMember {
    const NodeRows* rows; ///< an element of the set, which must outlive this
    int row; ///< one of its rows: the index in the group

    /// The child itself. The row must exist.
    [[nodiscard]] NxNode* node() const { return rows->group().getChild(row); }
};

/// Whether a tree of the scene shows one child before another one.
[[nodiscard]] bool isBefore(const SetMember& left, const SetMember& right);
/// The same without children that are below others of the set, and with each child of a group once, however many places
/// the group has. The groups are in the order of the scene.
[[nodiscard]] NodeSet topmost(NodeSet set);
/// The children in the order in which a tree of the scene shows them. The set must live as long.
[[nodiscard]] std::vector<SetMember> inTreeOrder(const NodeSet& set);
/// The number of children in a set; those of a group that is in it twice count twice.
[[nodiscard]] std::size_t countOf(const NodeSet& set);

} // namespace meridane
