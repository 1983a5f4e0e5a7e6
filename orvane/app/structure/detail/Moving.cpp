#include "orvane/app/structure/detail/Moving.h"

#include "orvane/app/structure/detail/EditTexts.h"

#include "meridane/scene/edit/ChildrenPlan.h"

#include <utility>

namespace orvane {

NxNode* Moving::node(
    NxNode& node, const std::vector<NxGroup*>& from, const std::vector<NxGroup*>& to, bool staysElsewhere)
{
    if (!m_keeps || from == to)
        return &node;
    Result<NxRef<NxNode>> kept = m_keeping.keep(node, from, to, staysElsewhere);
    if (!kept) {
        m_failure = kept.error();
        return nullptr;
    }
    m_nodes.push_back(std::move(kept).value());
    return m_nodes.back().get();
}

NodeEdit Moving::edit(const QString& label, const meridane::ChildrenPlan& plan, meridane::NodeSet selection)
{
    NodeEdit edit{label, plan.changes(), std::move(selection), EditTexts::addedTransforms(m_keeping.addedTransforms())};
    m_keeping.addTo(edit.changes);
    return edit;
}

} // namespace orvane
