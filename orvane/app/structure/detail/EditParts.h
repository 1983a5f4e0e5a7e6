#pragma once

#include "orvane/app/structure/NodeEdit.h"

#include <span>

namespace meridane {
class ChildrenPlan;
class NodeCopier;
} // namespace meridane

namespace orvane {

using EditNodes = std::vector<NxNode*>;

/// The nodes of a set in the order of the tree.
[[nodiscard]] EditNodes nodesOf(const meridane::NodeSet& set);
[[nodiscard]] EditNodes pointersOf(std::span<const NxRef<NxNode>> nodes);
/// The rows that nodes have in a group after a plan, if they were planned for one place.
[[nodiscard]] meridane::NodeRows rowsAfter(const meridane::ChildrenPlan& plan, const NodeSpot& spot, std::size_t count);
/// Copies of the nodes, which share what these share, and what the copier has copied before.
[[nodiscard]] Result<std::vector<NxRef<NxNode>>> copiesOf(const EditNodes& nodes, meridane::NodeCopier& copier);
/// The first of the nodes that is the group, or above it; null if there is none.
[[nodiscard]] const NxNode* firstAbove(const EditNodes& nodes, const NxGroup& group);
/// The place behind the group of some rows.
[[nodiscard]] NodeSpot spotBehind(const meridane::NodeRows& rows);

} // namespace orvane
