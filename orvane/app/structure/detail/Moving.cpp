#include "orvane/app/structure/detail/Moving.h"

#include "orvane/app/structure/detail/EditTexts.h"

#include "meridane/scene/edit/ChildrenPlan.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace orvane {

NxNode* Moving::node(
    NxNode& node, const std::vector<NxGroup*>& from, const std::vector<NxGroup*>& to, bool staysElsewhere)
{
    if (!m_keeps || m_keeping.isSamePlace(from, to))
        return &node;
    Result<NxRef<NxNode>> kept = m_keeping.keep(node, from, to, staysElsewhere);
    if (!kept) {
        m_failure = kept.error();
        return nullptr;
    }
    m_nodes.push_back(std::move(kept).value());
    return m_nodes.back().get();
}

bool Moving::keepPlaces(const meridane::NodeSet& set, std::vector<NxNode*>& nodes, const std::vector<NxGroup*>& to)
{
    // Mostly no group is anywhere else, so that there is nothing to do for each of its nodes.
    const auto isSame
        = [&](const meridane::NodeRows& rows) { return !m_keeps || m_keeping.isSamePlace(rows.path, to); };
    if (std::ranges::all_of(set, isSame))
        return true;
    std::size_t next = 0;
    for (const meridane::SetMember& member : meridane::inTreeOrder(set)) {
        nodes[next] = node(*nodes[next], member.rows->path, to);
        if (nodes[next++] == nullptr)
            return false;
    }
    return true;
}

NodeEdit Moving::edit(const QString& label, const meridane::ChildrenPlan& plan, meridane::NodeSet selection)
{
    NodeEdit edit{label, plan.changes(), std::move(selection), EditTexts::addedTransforms(m_keeping.addedTransforms())};
    m_keeping.addTo(edit.changes);
    return edit;
}

} // namespace orvane
