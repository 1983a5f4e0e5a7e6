#pragma once

#include "orvane/app/structure/NodeEdit.h"

#include <span>

/// Finds out what has to change in a scene when nodes are removed, moved or copied. Changes nothing itself.
///
/// Nodes below others of a set go along with these. The scene must not change between a call and its edit.
class NodeEdits {
public:
    using Set = meridane::NodeSet;
    /// What becomes of the names of nodes that come into a group.
    enum class Names {
        Keep,
        Number, ///< one that another child has gets a number
    };

    /// `scene` is the group that holds the top nodes.
    explicit NodeEdits(NxGroup& scene)
        : m_scene(scene)
    {
    }

    [[nodiscard]] MadeEdit remove(const Set& set) const;
    /// Copies come behind the last of the set in each group.
    [[nodiscard]] MadeEdit duplicate(const Set& set) const;
    [[nodiscard]] MadeEdit move(const Set& set, const NodeSpot& spot, NodePlaces places) const;
    /// Why nodes can't be moved to a group, or be shared there; empty if they can.
    [[nodiscard]] static QString refusalOfMove(const Set& set, const NxGroup& group);
    /// Lets the same nodes be in another place as well.
    [[nodiscard]] static MadeEdit share(const Set& set, const NodeSpot& spot);
    [[nodiscard]] static MadeEdit shareNodes(std::span<const NxRef<NxNode>> nodes, const NodeSpot& spot);
    /// Copies of the nodes come into another place.
    [[nodiscard]] MadeEdit copy(const Set& set, const NodeSpot& spot) const;
    /// Puts nodes that aren't in the scene into it.
    [[nodiscard]] static NodeEdit insert(std::span<const NxRef<NxNode>> nodes, const NodeSpot& spot, Names names);

private:
    NxGroup& m_scene;
};
