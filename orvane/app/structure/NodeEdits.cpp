#include "orvane/app/structure/NodeEdits.h"

#include "orvane/app/structure/SiblingNames.h"
#include "orvane/app/structure/detail/EditParts.h"
#include "orvane/app/structure/detail/EditTexts.h"
#include "orvane/app/structure/detail/Moving.h"

#include "meridane/scene/edit/ChildrenPlan.h"
#include "meridane/scene/edit/NodeCopier.h"

#include <algorithm>
#include <utility>

namespace {

using meridane::ChildrenPlan;
using meridane::NodeRows;
using meridane::NodeSet;
using orvane::EditNodes;
using orvane::EditTexts;

/// The node that is to be selected when a set is removed: the next one, else the one before, else the group.
NodeSet besideRemoved(const NodeSet& set)
{
    if (set.empty())
        return {};
    const NodeRows& last = set.back();
    const int count = last.group().getNumChildren();
    const int stay = count - static_cast<int>(last.rows.size());
    if (stay > 0) {
        const int after = last.rows.back() + 1 - static_cast<int>(last.rows.size());
        return {{last.path, last.places, {std::min(after, stay - 1)}}};
    }
    if (last.path.size() < 2)
        return {};
    NodeRows group{last.path, last.places, {last.places.back()}};
    group.path.pop_back();
    group.places.pop_back();
    // Its row may be another one, if others of its siblings are removed.
    const auto above
        = std::ranges::find_if(set, [&](const NodeRows& rows) { return &rows.group() == group.path.back(); });
    if (above != set.end())
        group.rows.front()
            -= static_cast<int>(std::ranges::lower_bound(above->rows, group.rows.front()) - above->rows.begin());
    return {std::move(group)};
}

} // namespace

MadeEdit NodeEdits::remove(const Set& set) const
{
    const NodeSet top = meridane::topmost(set);
    ChildrenPlan plan;
    plan.remove(top);
    return NodeEdit{EditTexts::remove(top), plan.changes(), besideRemoved(top), {}};
}

MadeEdit NodeEdits::duplicate(const Set& set) const
{
    const NodeSet top = meridane::topmost(set);
    meridane::NodeCopier copier(meridane::countOf(top));
    ChildrenPlan plan;
    NodeSet selection;
    for (const NodeRows& rows : top) {
        const auto copies = orvane::copiesOf(orvane::nodesOf({rows}), copier);
        if (!copies)
            return orvane::Failure{copies.error()};
        SiblingNames names(rows.group());
        const EditNodes nodes = orvane::pointersOf(copies.value());
        for (NxNode* const node : nodes)
            node->setName(names.take(node->getName()));
        const NodeSpot spot{rows.path, rows.places, rows.rows.back() + 1};
        plan.insert(rows.group(), spot.index, nodes);
        selection.push_back(orvane::rowsAfter(plan, spot, nodes.size()));
    }
    return NodeEdit{EditTexts::duplicate(top), plan.changes(), std::move(selection), {}};
}

MadeEdit NodeEdits::move(const Set& set, const NodeSpot& spot, NodePlaces places) const
{
    const NodeSet top = meridane::topmost(set);
    EditNodes nodes = orvane::nodesOf(top);
    if (const NxNode* const above = orvane::firstAbove(nodes, spot.group()))
        return orvane::Failure{EditTexts::intoItself(*above)};
    orvane::Moving moving(m_scene, places);
    if (!moving.keepPlaces(top, nodes, spot.path))
        return orvane::Failure{moving.failure()};
    ChildrenPlan plan;
    plan.remove(top);
    plan.insert(spot.group(), spot.index, nodes);
    return moving.edit(
        EditTexts::move(top, spot.group(), m_scene), plan, {orvane::rowsAfter(plan, spot, nodes.size())});
}

QString NodeEdits::refusalOfMove(const Set& set, const NxGroup& group)
{
    const NxNode* const above = orvane::firstAbove(orvane::nodesOf(meridane::topmost(set)), group);
    return above != nullptr ? EditTexts::intoItself(*above) : QString();
}

MadeEdit NodeEdits::share(const Set& set, const NodeSpot& spot)
{
    const EditNodes nodes = orvane::nodesOf(meridane::topmost(set));
    return shareNodes(std::vector<NxRef<NxNode>>(nodes.begin(), nodes.end()), spot);
}

MadeEdit NodeEdits::shareNodes(std::span<const NxRef<NxNode>> nodes, const NodeSpot& spot)
{
    const EditNodes shared = orvane::pointersOf(nodes);
    if (const NxNode* const above = orvane::firstAbove(shared, spot.group()))
        return orvane::Failure{EditTexts::intoItself(*above)};
    ChildrenPlan plan;
    plan.insert(spot.group(), spot.index, shared);
    return NodeEdit{EditTexts::share(shared, spot), plan.changes(), {orvane::rowsAfter(plan, spot, shared.size())}, {}};
}

MadeEdit NodeEdits::copy(const Set& set, const NodeSpot& spot) const
{
    const NodeSet top = meridane::topmost(set);
    meridane::NodeCopier copier(meridane::countOf(top));
    const auto copies = orvane::copiesOf(orvane::nodesOf(top), copier);
    if (!copies)
        return orvane::Failure{copies.error()};
    NodeEdit edit = insert(copies.value(), spot, Names::Number);
    edit.label = EditTexts::copy(top, spot.group(), m_scene);
    return edit;
}

NodeEdit NodeEdits::insert(std::span<const NxRef<NxNode>> nodes, const NodeSpot& spot, Names names)
{
    const EditNodes inserted = orvane::pointersOf(nodes);
    if (names == Names::Number) {
        SiblingNames siblings(spot.group());
        for (NxNode* const node : inserted)
            node->setName(siblings.take(node->getName()));
    }
    ChildrenPlan plan;
    plan.insert(spot.group(), spot.index, inserted);
    return NodeEdit{EditTexts::add(inserted), plan.changes(), {orvane::rowsAfter(plan, spot, inserted.size())}, {}};
}
