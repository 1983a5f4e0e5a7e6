#pragma once

#include "orvane/app/structure/NodeEdit.h"

/// Finds out what has to change in a scene when nodes are grouped or groups are dissolved, and when nodes that are in
/// several places get copies of their own. Changes nothing itself; see `NodeEdits`.
class GroupEdits {
public:
    using Set = meridane::NodeSet;

    /// `scene` is the group that holds the top nodes.
    explicit GroupEdits(NxGroup& scene)
        : m_scene(scene)
    {
    }

    /// A new group takes the place of the first node and holds all, in their order. Nodes of several groups come into
    /// the nearest group above all of them.
    [[nodiscard]] MadeEdit group(const Set& set, NodePlaces places) const;
    /// The children of each group take its place. Nodes that are no groups stay as they are.
    [[nodiscard]] MadeEdit ungroup(const Set& set, NodePlaces places) const;
    /// Gives each place of the set a copy of its own, if the node or a group above it is in other places, too.
    [[nodiscard]] MadeEdit makeOwn(const Set& set) const;

private:
    NxGroup& m_scene;
};
