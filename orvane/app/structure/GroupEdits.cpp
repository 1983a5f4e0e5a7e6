#include "orvane/app/structure/GroupEdits.h"

#include "orvane/app/structure/NodeUses.h"
#include "orvane/app/structure/SiblingNames.h"
#include "orvane/app/structure/detail/EditParts.h"
#include "orvane/app/structure/detail/EditTexts.h"
#include "orvane/app/structure/detail/Moving.h"
#include "orvane/app/structure/detail/OwnCopies.h"

#include "meridane/scene/edit/ChildrenPlan.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <algorithm>
#include <utility>

namespace {

using meridane::ChildrenPlan;
using meridane::NodeRows;
using meridane::NodeSet;
using meridane::SetMember;
using orvane::EditNodes;
using orvane::EditTexts;

/// How many groups of two paths are the same from the top on, in the same places.
std::size_t commonLength(const NodeRows& left, const NodeRows& right)
{
    std::size_t length = 1;
    while (
        length < std::min(left.path.size(), right.path.size()) && left.places[length - 1] == right.places[length - 1])
        ++length;
    return length;
}

/// The place of a new group that is to hold a set, which isn't empty.
NodeSpot spotForGroup(const NodeSet& set)
{
    const NodeRows& first = set.front();
    std::size_t length = first.path.size();
    for (const NodeRows& rows : set)
        length = std::min(length, commonLength(first, rows));
    NodeSpot spot;
    spot.path.assign(first.path.begin(), first.path.begin() + static_cast<std::ptrdiff_t>(length));
    spot.places.assign(first.places.begin(), first.places.begin() + static_cast<std::ptrdiff_t>(length) - 1);
    const auto isIn = [length](const NodeRows& rows) { return rows.path.size() == length; };
    const auto direct = std::ranges::find_if(set, isIn);
    spot.index = direct != set.end() ? direct->rows.front() : first.places[length - 1] + 1;
    return spot;
}

NxGroup* dissolvable(NxNode* node)
{
    return dynamic_cast<NxUnknownNode*>(node) != nullptr ? nullptr : dynamic_cast<NxGroup*>(node);
}

/// The children of a group as they are to come into the group above it; nothing if a place can't be kept.
std::optional<EditNodes> childrenOf(NxGroup& group, const NodeRows& rows, orvane::Moving& moving, bool staysElsewhere)
{
    std::vector<NxGroup*> path = rows.path;
    path.push_back(&group);
    EditNodes children;
    for (NxNode* const child : group.getChildren()) {
        children.push_back(moving.node(*child, path, rows.path, staysElsewhere));
        if (children.back() == nullptr)
            return std::nullopt;
    }
    return children;
}

} // namespace

MadeEdit GroupEdits::group(const Set& set, NodePlaces places) const
{
    const NodeSet top = meridane::topmost(set);
    const NodeSpot spot = spotForGroup(top);
    const NxRef<NxGroup> group(new NxGroup);
    SiblingNames names(spot.group());
    group->setName(names.take(VbString("group")));
    orvane::Moving moving(m_scene, places);
    EditNodes nodes = orvane::nodesOf(top);
    if (!moving.keepPlaces(top, nodes, spot.path))
        return orvane::Failure{moving.failure()};
    group->replaceChildren(0, 0, nodes);
    NxNode* const node = group.get();
    ChildrenPlan plan;
    plan.remove(top);
    plan.insert(spot.group(), spot.index, std::span(&node, 1));
    return moving.edit(EditTexts::group(top), plan, {orvane::rowsAfter(plan, spot, 1)});
}

MadeEdit GroupEdits::ungroup(const Set& set, NodePlaces places) const
{
    const NodeSet top = meridane::topmost(set);
    NodeUses uses(m_scene);
    orvane::Moving moving(m_scene, places);
    ChildrenPlan plan;
    EditNodes groups;
    std::vector<std::pair<NodeSpot, std::size_t>> spots;
    for (const SetMember& member : meridane::inTreeOrder(top)) {
        NxGroup* const group = dissolvable(member.node());
        if (group == nullptr)
            continue;
        const NodeRows& rows = *member.rows;
        const std::optional<EditNodes> children = childrenOf(*group, rows, moving, uses.count(*group) > 1);
        if (!children)
            return orvane::Failure{moving.failure()};
        plan.remove(rows.group(), std::span(&member.row, 1));
        plan.insert(rows.group(), member.row, *children);
        groups.push_back(group);
        spots.emplace_back(NodeSpot{rows.path, rows.places, member.row}, children->size());
    }
    if (groups.empty())
        return orvane::Failure{EditTexts::isNoGroup(top)};
    NodeSet selection;
    for (const auto& [spot, count] : spots)
        selection.push_back(orvane::rowsAfter(plan, spot, count));
    return moving.edit(EditTexts::ungroup(groups), plan, std::move(selection));
}

MadeEdit GroupEdits::makeOwn(const Set& set) const
{
    const NodeSet top = meridane::topmost(set);
    orvane::OwnCopies copies(m_scene);
    for (const SetMember& member : meridane::inTreeOrder(top)) {
        if (!copies.add(*member.rows, member.row))
            return orvane::Failure{EditTexts::notCopied(*member.node())};
    }
    if (copies.isEmpty())
        return orvane::Failure{EditTexts::isOwn(top)};
    return NodeEdit{EditTexts::makeOwn(top), copies.changes(), copies.selection(), {}};
}
