#pragma once

#include "meridane/gl/places/detail/PlacedScene.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstdint>
#include <span>
#include <vector>

namespace meridane {

/// The items around which outlines are drawn: those below some nodes, and, for a material, texture or complexity, those
/// that it applies to. Only items that are shown.
///
/// Holds references to the nodes, so that no other node can get their addresses.
class OutlinedItems {
public:
    /// One instance of a node, given as the path of nodes from a child of the root to it; empty for none.
    void setPath(std::span<NxNode* const> nodes);
    /// All instances of some nodes.
    void setNodes(std::span<NxNode* const> nodes);
    /// To be called when other items are shown.
    void invalidate() noexcept { m_isStale = true; }

    /// The items in the scene as it is after its `update`.
    [[nodiscard]] std::span<const Id> update(const PlacedScene& scene);

private:
    std::vector<NxRef<NxNode>> m_nodes;
    std::vector<Id> m_items;
    std::uint64_t m_structure = 0; // of the scene when the items were found
    bool m_isPath = false;
    bool m_isStale = true;
};

} // namespace meridane
