#pragma once

#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <vector>

/// The rows of the scene tree under one node, in one place of the tree: made when a view first asks for them.
///
/// It keeps the children that the views show: those of the scene at the last notification.
class SceneBranch {
public:
    SceneBranch(NxNode* node, SceneBranch* parent, int row);
    SceneBranch(const SceneBranch&) = delete;
    SceneBranch& operator=(const SceneBranch&) = delete;

    [[nodiscard]] NxNode* node() const noexcept { return m_node.get(); }
    /// The branch that this one's node is a row of; null for the topmost.
    [[nodiscard]] SceneBranch* parent() const noexcept { return m_parent; }
    [[nodiscard]] int row() const noexcept { return m_row; }

    [[nodiscard]] int count() const noexcept { return static_cast<int>(m_children.size()); }
    [[nodiscard]] NxNode* child(int row) const { return m_children[static_cast<std::size_t>(row)].get(); }
    [[nodiscard]] std::span<const NxRef<NxNode>> children() const noexcept { return m_children; }
    /// The first row of that node from `start` on, or -1.
    [[nodiscard]] int findRow(const NxNode* node, int start = 0) const;

    /// The branch under a row, or null before `addBranch` made it.
    [[nodiscard]] SceneBranch* branch(int row) const;
    SceneBranch& addBranch(int row);
    [[nodiscard]] const std::map<int, std::unique_ptr<SceneBranch>>& branches() const noexcept { return m_branches; }

    void insertRows(int row, std::vector<NxRef<NxNode>> nodes);
    void removeRows(int row, int count);

    /// `changed` is called from the delay queue after changes of the node.
    void watch(std::function<void()> changed);

private:
    void shiftBranches(int from, int distance);

    NxRef<NxNode> m_node;
    SceneBranch* m_parent;
    int m_row;
    std::vector<NxRef<NxNode>> m_children;
    std::map<int, std::unique_ptr<SceneBranch>> m_branches; // by row
    std::function<void()> m_changed;
    NxNodeSensor m_sensor;
};
