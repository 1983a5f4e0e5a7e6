#include "orvane/app/structure/TreeNodes.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/RowGroups.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QTreeView>

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>
#include <utility>

namespace orvane {

namespace {

using meridane::NodeRows;
using meridane::NodeSet;

/// Where a node is among the children of a group, which the tree shows in that row; -1 if it isn't there any more.
int presentPlace(const NxGroup& group, const NxNode* node, int row)
{
    return group.getChild(row) == node ? row : group.findChild(node);
}

/// The rows as indices of the group's children, without those that have left it. The tree shows `shown`, and follows
/// the group a moment later.
std::vector<int> presentPlaces(const NxGroup& group, std::span<const NxRef<NxNode>> shown, std::vector<int> rows)
{
    const std::span<NxNode* const> now = group.getChildren();
    const auto isThere = [&](int row) {
        const auto place = static_cast<std::size_t>(row);
        return place < now.size() && now[place] == shown[place].get();
    };
    if (std::ranges::all_of(rows, isThere))
        return rows;
    std::unordered_map<const NxNode*, int> places;
    for (std::size_t i = 0; i < now.size(); ++i)
        places.try_emplace(now[i], static_cast<int>(i));
    std::vector<int> present;
    for (const int row : rows) {
        if (isThere(row))
            present.push_back(row);
        else if (const auto place = places.find(shown[static_cast<std::size_t>(row)].get()); place != places.end())
            present.push_back(place->second);
    }
    std::ranges::sort(present);
    present.erase(std::unique(present.begin(), present.end()), present.end());
    return present;
}

/// The group whose children are under a row, without any of them; nothing if it has left the scene.
std::optional<NodeRows> groupBelow(const SceneTreeModel& model, const QModelIndex& index)
{
    NodeRows rows{{model.scene()}, {}, {}};
    if (rows.path.front() == nullptr)
        return std::nullopt;
    QModelIndexList steps;
    for (QModelIndex step = index; step.isValid(); step = step.parent())
        steps.prepend(step);
    for (const QModelIndex& step : steps) {
        auto* const group = dynamic_cast<NxGroup*>(model.node(step));
        const int place = group != nullptr ? presentPlace(rows.group(), group, step.row()) : -1;
        if (place < 0)
            return std::nullopt;
        rows.path.push_back(group);
        rows.places.push_back(place);
    }
    return rows;
}

/// The row under which the children of a group are, after it was brought up to date. The group has children.
QModelIndex updatedRow(SceneTreeModel& model, const NodeRows& rows)
{
    std::vector<NxNode*> path(rows.path.begin() + 1, rows.path.end());
    QModelIndex index;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const QModelIndex found = model.indexOfPath(std::span(path).first(i + 1));
        // Of several places of a node in a group, the one that is meant.
        const QModelIndex meant = found.siblingAtRow(rows.places[i]);
        index = meant.isValid() && model.node(meant) == path[i] ? meant : found;
    }
    path.push_back(rows.group().getChild(0));
    static_cast<void>(model.indexOfPath(path)); // which updates the rows on its way
    return index;
}

} // namespace

NodeSet selectedNodes(const SceneTreePanel& tree)
{
    const SceneTreeModel& model = *tree.model();
    NodeSet set;
    for (RowGroups::Group& group : RowGroups(tree.selection().ranges()).take()) {
        std::optional<NodeRows> rows = groupBelow(model, group.parent);
        if (!rows)
            continue;
        rows->rows = presentPlaces(rows->group(), model.nodesBelow(group.parent), std::move(group.rows));
        if (!rows->rows.empty())
            set.push_back(std::move(*rows));
    }
    std::ranges::sort(set, [](const NodeRows& left, const NodeRows& right) {
        return meridane::isBefore({&left, left.rows.front()}, {&right, right.rows.front()});
    });
    return set;
}

std::optional<NodeRows> lastSelectedNode(const SceneTreePanel& tree)
{
    return nodeAt(tree, tree.selected());
}

std::optional<NodeRows> nodeAt(const SceneTreePanel& tree, const QModelIndex& index)
{
    if (!index.isValid())
        return std::nullopt;
    std::optional<NodeRows> rows = groupBelow(*tree.model(), index.parent());
    const int place = rows ? presentPlace(rows->group(), tree.model()->node(index), index.row()) : -1;
    if (place < 0)
        return std::nullopt;
    rows->rows.push_back(place);
    return rows;
}

void selectNodes(SceneTreePanel& tree, const NodeSet& nodes)
{
    SceneTreeModel& model = *tree.model();
    RowGroups groups;
    QModelIndex last;
    for (const NodeRows& rows : nodes) {
        if (rows.rows.empty() || rows.group().getNumChildren() == 0)
            continue;
        const QModelIndex parent = updatedRow(model, rows);
        if (rows.path.size() > 1 && !parent.isValid())
            continue;
        for (QModelIndex above = parent; above.isValid(); above = above.parent())
            tree.view()->expand(above);
        groups.add(parent, rows.rows);
        if (!last.isValid())
            last = model.index(rows.rows.front(), SceneTreeModel::NameColumn, parent);
    }
    tree.selection().selectRanges(rangesOf(model, groups.take()), last);
}

bool updateRows(SceneTreePanel& tree, const QModelIndex& parent)
{
    SceneTreeModel& model = *tree.model();
    const NxNode* const group = parent.isValid() ? model.node(parent) : model.scene();
    if (group == nullptr || group->getChildren().empty())
        return false;
    std::vector<NxNode*> path = model.path(parent);
    path.push_back(group->getChildren().front());
    return model.indexOfPath(path).isValid(); // which updates the rows on its way
}

std::vector<TreeRows> rowsOf(const NodeSet& nodes)
{
    std::vector<TreeRows> rows;
    for (const NodeRows& some : nodes)
        rows.push_back({some.places, some.rows});
    return rows;
}

std::optional<NodeRows> groupAt(NxGroup& scene, const std::vector<int>& places)
{
    NodeRows found{{&scene}, places, {}};
    for (const int place : places) {
        auto* const group = dynamic_cast<NxGroup*>(found.group().getChild(place));
        if (group == nullptr)
            return std::nullopt;
        found.path.push_back(group);
    }
    return found;
}

NodeSet nodesIn(NxGroup& scene, const std::vector<TreeRows>& rows)
{
    NodeSet set;
    for (const TreeRows& some : rows) {
        std::optional<NodeRows> found = groupAt(scene, some.places);
        if (!found)
            continue;
        std::ranges::copy_if(some.rows, std::back_inserter(found->rows),
            [&](int row) { return found->group().getChild(row) != nullptr; });
        set.push_back(std::move(*found));
    }
    return set;
}

} // namespace orvane
