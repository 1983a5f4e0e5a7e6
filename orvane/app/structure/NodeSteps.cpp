#include "orvane/app/structure/NodeSteps.h"

#include "orvane/app/structure/detail/EditParts.h"
#include "orvane/app/structure/detail/EditTexts.h"
#include "orvane/app/structure/detail/Moving.h"

#include "meridane/scene/edit/ChildrenPlan.h"

#include <numeric>
#include <utility>

namespace {

using meridane::ChildrenPlan;
using meridane::NodeRows;
using meridane::NodeSet;
using orvane::EditNodes;
using orvane::EditTexts;

/// The rows of a group in runs: first and last.
std::vector<std::pair<int, int>> runsOf(const std::vector<int>& rows)
{
    std::vector<std::pair<int, int>> runs;
    for (const int row : rows) {
        if (!runs.empty() && runs.back().second + 1 == row)
            runs.back().second = row;
        else
            runs.emplace_back(row, row);
    }
    return runs;
}

NodeSpot spotBehind(const NodeRows& rows)
{
    NodeSpot spot{rows.path, rows.places, rows.places.back() + 1};
    spot.path.pop_back();
    spot.places.pop_back();
    return spot;
}

/// Exchanges each run of rows with the sibling before or behind it. `rows` become those where the nodes are then.
/// Returns whether any could move.
bool shift(ChildrenPlan& plan, NodeRows& rows, int step)
{
    NxGroup& group = rows.group();
    bool moves = false;
    std::vector<int> after;
    for (const auto& [first, last] : runsOf(rows.rows)) {
        const int sibling = step < 0 ? first - 1 : last + 1;
        NxNode* const node = group.getChild(sibling);
        if (node != nullptr) {
            plan.remove(group, std::span(&sibling, 1));
            plan.insert(group, step < 0 ? last + 1 : first, std::span(&node, 1));
            moves = true;
        }
        for (int row = first; row <= last; ++row)
            after.push_back(node != nullptr ? row + step : row);
    }
    rows.rows = std::move(after);
    return moves;
}

MadeEdit shiftAll(const NodeSet& set, int step, QString (*failure)(const NodeSet&))
{
    NodeSet top = meridane::topmost(set);
    const QString label = EditTexts::reorder(top);
    ChildrenPlan plan;
    bool moves = false;
    for (NodeRows& rows : top)
        moves = shift(plan, rows, step) || moves;
    if (!moves)
        return orvane::Failure{failure(top)};
    return NodeEdit{label, plan.changes(), std::move(top), {}};
}

} // namespace

MadeEdit NodeSteps::up(const Set& set) const
{
    return shiftAll(set, -1, &EditTexts::isFirst);
}

MadeEdit NodeSteps::down(const Set& set) const
{
    return shiftAll(set, 1, &EditTexts::isLast);
}

MadeEdit NodeSteps::out(const Set& set, NodePlaces places) const
{
    const NodeSet top = meridane::topmost(set);
    orvane::Moving moving(m_scene, places);
    ChildrenPlan plan;
    NodeSet moved;
    std::vector<std::pair<NodeSpot, std::size_t>> spots;
    for (const NodeRows& rows : top) {
        if (rows.path.size() < 2)
            continue;
        const NodeSpot spot = spotBehind(rows);
        EditNodes nodes;
        for (const int row : rows.rows) {
            nodes.push_back(moving.node(*rows.group().getChild(row), rows.path, spot.path));
            if (nodes.back() == nullptr)
                return orvane::Failure{moving.failure()};
        }
        plan.remove(rows.group(), rows.rows);
        plan.insert(spot.group(), spot.index, nodes);
        spots.emplace_back(spot, nodes.size());
        moved.push_back(rows);
    }
    if (moved.empty())
        return orvane::Failure{EditTexts::isAtTop(top)};
    NodeSet selection;
    for (const auto& [spot, count] : spots)
        selection.push_back(orvane::rowsAfter(plan, spot, count));
    return moving.edit(EditTexts::moveOut(moved), plan, std::move(selection));
}

MadeEdit NodeSteps::in(const Set& set, NodePlaces places) const
{
    const NodeSet top = meridane::topmost(set);
    orvane::Moving moving(m_scene, places);
    ChildrenPlan plan;
    std::vector<std::pair<NodeSpot, std::size_t>> spots;
    for (const NodeRows& rows : top) {
        for (const auto& [first, last] : runsOf(rows.rows)) {
            auto* const group = dynamic_cast<NxGroup*>(rows.group().getChild(first - 1));
            if (group == nullptr)
                continue;
            NodeSpot spot{rows.path, rows.places, group->getNumChildren()};
            spot.path.push_back(group);
            spot.places.push_back(first - 1);
            std::vector<int> moved(static_cast<std::size_t>(last - first + 1));
            std::iota(moved.begin(), moved.end(), first);
            EditNodes nodes;
            for (const int row : moved) {
                nodes.push_back(rows.group().getChild(row));
                if (const NxNode* const above = orvane::firstAbove({nodes.back()}, *group))
                    return orvane::Failure{EditTexts::intoItself(*above)};
                nodes.back() = moving.node(*nodes.back(), rows.path, spot.path);
                if (nodes.back() == nullptr)
                    return orvane::Failure{moving.failure()};
            }
            plan.remove(rows.group(), moved);
            plan.insert(*group, spot.index, nodes);
            spots.emplace_back(std::move(spot), nodes.size());
        }
    }
    if (spots.empty())
        return orvane::Failure{EditTexts::hasNoGroupAbove(top)};
    NodeSet selection;
    for (const auto& [spot, count] : spots)
        selection.push_back(orvane::rowsAfter(plan, spot, count));
    return moving.edit(EditTexts::moveIn(top), plan, std::move(selection));
}
