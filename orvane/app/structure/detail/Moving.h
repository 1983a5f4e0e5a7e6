#pragma once

#include "orvane/app/structure/NodeEdit.h"
#include "orvane/app/structure/PlaceKeeping.h"

namespace meridane {
class ChildrenPlan;
}

namespace orvane {

/// Nodes that move from group to group in one edit, with their places kept or not.
class Moving {
public:
    Moving(NxGroup& scene, NodePlaces places)
        : m_keeping(scene)
        , m_keeps(places == NodePlaces::Keep)
    {
    }

    /// What is to come into the last group of `to` in place of a node of the last group of `from`: see `PlaceKeeping`.
    /// Null if the place can't be kept; `failure` says why.
    [[nodiscard]] NxNode* node(
        NxNode& node, const std::vector<NxGroup*>& from, const std::vector<NxGroup*>& to, bool staysElsewhere = false);
    /// The same for all nodes of a set, which are in the order of the tree. Returns false if a place can't be kept.
    [[nodiscard]] bool keepPlaces(
        const meridane::NodeSet& set, std::vector<NxNode*>& nodes, const std::vector<NxGroup*>& to);
    [[nodiscard]] const QString& failure() const noexcept { return m_failure; }

    /// The edit that the plan makes, with what changes in the nodes. To be called once, at the end.
    [[nodiscard]] NodeEdit edit(const QString& label, const meridane::ChildrenPlan& plan, meridane::NodeSet selection);

private:
    PlaceKeeping m_keeping;
    bool m_keeps;
    std::vector<NxRef<NxNode>> m_nodes;
    QString m_failure;
};

} // namespace orvane
