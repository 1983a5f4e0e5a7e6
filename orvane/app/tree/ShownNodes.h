#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/nodes/NxNode.h"

#include <deque>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class SceneBranch;

/// Watches the nodes that views show at the moment, as far as their own rows go: the name, the number of
/// children, and whether fields are ignored.
///
/// A view asks the model for a row's data whenever it paints the row, so the nodes asked for last are those in view.
/// Only some thousands of them are watched, whatever the size of the scene; a row that was forgotten is
/// noted again when it is painted.
class ShownNodes {
public:
    static constexpr std::size_t capacity = 4096;

    /// `unfolds` is true when the node got its first child or lost its last one.
    using Changed = std::function<void(SceneBranch& branch, NxNode& node, bool unfolds)>;

    /// `changed` is called from the delay queue for each branch that shows a node whose row changed.
    explicit ShownNodes(Changed changed);
    ~ShownNodes();
    ShownNodes(const ShownNodes&) = delete;
    ShownNodes& operator=(const ShownNodes&) = delete;

    /// Notes that a row of the branch shows this node now. The node lives until it is forgotten.
    void note(SceneBranch& branch, NxNode& node);
    /// Forgets a node in a branch whose row goes.
    void forget(const SceneBranch& branch, const NxNode& node);
    /// Forgets whatever a branch that goes shows.
    void forget(const SceneBranch& branch);
    void clear();

    [[nodiscard]] std::size_t count() const noexcept { return m_watches.size(); }

private:
    struct Watch;

    void report(Watch& watch);
    void forgetOldest();

    Changed m_changed;
    std::unordered_map<const NxNode*, std::unique_ptr<Watch>> m_watches;
    std::deque<const NxNode*> m_order; // may name nodes that are forgotten already
};
