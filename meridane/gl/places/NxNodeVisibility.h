#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <span>
#include <unordered_map>

/// Which nodes of a scene are drawn and can be picked. This is for looking at a part of the scene, and never part of
/// it.
///
/// A node is shown unless it or a node above it is hidden. If nodes are isolated, only those and what is below them are
/// shown. A node that is used in several places is hidden or isolated in all of them. Only what would be drawn is
/// hidden: materials, lights and transforms keep their effect on what is shown.
///
/// Holds references to the nodes.
class NxNodeVisibility {
public:
    /// What holds for one place of a node, through those above it. The default is that of the root's parent.
    struct State {
        bool isHidden = false; ///< the node, or one above it, is hidden
        bool isIsolated = false; ///< the node, or one above it, is isolated
    };

    /// Hides these nodes in place of those that were hidden; none shows all.
    void setHidden(std::span<NxNode* const> nodes);
    /// Isolates these nodes in place of those that were isolated; none ends it.
    void setIsolated(std::span<NxNode* const> nodes);

    /// Whether nothing is hidden nor isolated.
    [[nodiscard]] bool showsAll() const noexcept { return m_marks.empty(); }
    /// The state of a node below one with the state `above`.
    [[nodiscard]] State below(State above, const NxNode& node) const;
    /// Whether a place with that state is shown.
    [[nodiscard]] bool shows(State state) const noexcept
    {
        return !state.isHidden && (state.isIsolated || m_isolated == 0);
    }

private:
    struct Mark {
        NxRef<NxNode> node;
        State own;
    };

    void set(std::span<NxNode* const> nodes, bool State::*part);

    std::unordered_map<const NxNode*, Mark> m_marks;
    std::size_t m_isolated = 0;
};
