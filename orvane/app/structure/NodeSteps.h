#pragma once

#include "orvane/app/structure/NodeEdit.h"

/// Finds out what has to change in a scene when nodes move one step in the tree, as by keys. Changes nothing itself;
/// see `NodeEdits`. Nodes of several groups move in each group by themselves, as far as they can.
class NodeSteps {
public:
    using Set = meridane::NodeSet;

    /// `scene` is the group that holds the top nodes.
    explicit NodeSteps(NxGroup& scene)
        : m_scene(scene)
    {
    }

    /// Before the sibling above.
    [[nodiscard]] MadeEdit up(const Set& set) const;
    /// Behind the sibling below.
    [[nodiscard]] MadeEdit down(const Set& set) const;
    /// Behind the group that they are in.
    [[nodiscard]] MadeEdit out(const Set& set, NodePlaces places) const;
    /// To the end of the group above.
    [[nodiscard]] MadeEdit in(const Set& set, NodePlaces places) const;

private:
    NxGroup& m_scene;
};
