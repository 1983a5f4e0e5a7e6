#include "orvane/app/structure/detail/EditParts.h"

#include "orvane/app/structure/detail/EditTexts.h"

#include "meridane/scene/edit/ChildrenPlan.h"
#include "meridane/scene/edit/NodeCopier.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orvane {

EditNodes nodesOf(const meridane::NodeSet& set)
{
    EditNodes nodes;
    nodes.reserve(meridane::countOf(set));
    for (const meridane::SetMember& member : meridane::inTreeOrder(set))
        nodes.push_back(member.node());
    return nodes;
}

meridane::NodeRows rowsAfter(const meridane::ChildrenPlan& plan, const NodeSpot& spot, std::size_t count)
{
    meridane::NodeRows rows{spot.path, spot.places, std::vector<int>(count)};
    std::iota(rows.rows.begin(), rows.rows.end(), plan.indexAfter(spot.group(), spot.index));
    return rows;
}

Result<std::vector<NxRef<NxNode>>> copiesOf(const EditNodes& nodes, meridane::NodeCopier& copier)
{
    std::vector<NxRef<NxNode>> copies;
    copies.reserve(nodes.size());
    for (NxNode* const node : nodes) {
        NxRef<NxNode> copy = copier.copy(*node);
        if (!copy)
            return Failure{EditTexts::notCopied(*node)};
        copies.push_back(std::move(copy));
    }
    return copies;
}

EditNodes pointersOf(std::span<const NxRef<NxNode>> nodes)
{
    EditNodes pointers;
    pointers.reserve(nodes.size());
    for (const NxRef<NxNode>& node : nodes)
        pointers.push_back(node.get());
    return pointers;
}

const NxNode* firstAbove(const EditNodes& nodes, const NxGroup& group)
{
    const auto isAbove
        = [&group](NxNode* node) { return node == &group || meridane::isAbove(std::span(&node, 1), &group); };
    if (std::ranges::find(nodes, &group) == nodes.end() && !meridane::isAbove(nodes, &group))
        return nullptr;
    return *std::ranges::find_if(nodes, isAbove);
}

NodeSpot spotBehind(const meridane::NodeRows& rows)
{
    NodeSpot spot{rows.path, rows.places, rows.places.back() + 1};
    spot.path.pop_back();
    spot.places.pop_back();
    return spot;
}

} // namespace orvane
