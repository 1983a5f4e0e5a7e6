#pragma once

#include "meridane/scene/edit/NodeRows.h"

#include <QModelIndex>

#include <optional>
#include <vector>

class SceneTreePanel;

/// The rows of the scene tree as nodes of the scene, which the rows follow a moment later.
namespace orvane {

/// Some rows under one row of the tree, by their indices alone: they hold no nodes.
struct TreeRows {
    std::vector<int> places; ///< from the top down to the row above them
    std::vector<int> rows;

    friend bool operator==(const TreeRows&, const TreeRows&) = default;
};

/// The selected nodes, each group once. The groups are in the order in which the tree shows the first of their nodes.
[[nodiscard]] meridane::NodeSet selectedNodes(const SceneTreePanel& tree);
/// The node that was selected last, as the only row; nothing if none is.
[[nodiscard]] std::optional<meridane::NodeRows> lastSelectedNode(const SceneTreePanel& tree);
/// The node of a row of the tree; nothing if it has left the scene, and for no row.
[[nodiscard]] std::optional<meridane::NodeRows> nodeAt(const SceneTreePanel& tree, const QModelIndex& index);
/// Selects these nodes and no others, and unfolds what they are in. Updates the rows on the way.
void selectNodes(SceneTreePanel& tree, const meridane::NodeSet& nodes);

/// Brings the rows under a row up to date, those of the top nodes for an invalid index. Returns false if there are
/// none.
bool updateRows(SceneTreePanel& tree, const QModelIndex& parent);

[[nodiscard]] std::vector<TreeRows> rowsOf(const meridane::NodeSet& nodes);
/// The group that these indices lead to, without any of its children; nothing if there is none.
[[nodiscard]] std::optional<meridane::NodeRows> groupAt(NxGroup& scene, const std::vector<int>& places);
/// The nodes in these rows, without those that aren't there.
[[nodiscard]] meridane::NodeSet nodesIn(NxGroup& scene, const std::vector<TreeRows>& rows);

} // namespace orvane
