#pragma once

#include "orvane/app/structure/NodeUses.h"

#include "meridane/scene/edit/ChildrenPlan.h"

#include <map>
#include <vector>

namespace orvane {

/// Copies for places of nodes that share their node, or a group above them, with other places of the scene.
///
/// Of a group that is shared only the way to the node is copied: the copy holds the same children but for that one.
class OwnCopies {
public:
    explicit OwnCopies(NxGroup& scene)
        : m_uses(scene)
    {
    }

    /// Plans a copy for the child in that row, unless nothing on the way to it is shared. Returns false if a node can't
    /// be copied.
    [[nodiscard]] bool add(const meridane::NodeRows& rows, int row);
    [[nodiscard]] bool isEmpty() const noexcept { return m_isEmpty; }
    [[nodiscard]] NxSceneChanges changes() const { return m_plan.changes(); }
    [[nodiscard]] meridane::NodeSet selection() const { return m_selection; }

private:
    [[nodiscard]] NxRef<NxGroup> copyOf(const std::vector<int>& place, NxGroup& group);
    void put(NxGroup& above, bool isCopy, int row, NxNode& node);

    NodeUses m_uses;
    meridane::ChildrenPlan m_plan;
    std::map<std::vector<int>, NxRef<NxGroup>> m_groups; // that were copied, by their places
    meridane::NodeSet m_selection;
    bool m_isEmpty = true;
};

} // namespace orvane
