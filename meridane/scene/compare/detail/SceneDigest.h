#pragma once

#include "meridane/scene/compare/detail/ChunkedList.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace meridane {

/// The nodes of a scene in tables, each node once, with hashes of what they hold. Made in slices, without recursion.
///
/// Nodes are numbered in the order of a scene file; 0 is the group that is the scene. Each use of a node as a child is
/// a slot; the slots of one group follow each other. The structure of the scene must not change meanwhile.
class SceneDigest {
public:
    static constexpr std::uint32_t none = UINT32_MAX;

    struct Node {
        NxNode* node;
        /// Of class, name, fields and all nodes below. Of long values only the beginning is taken, so equal hashes
        /// don't prove that the nodes are equal.
        std::uint64_t hash;
        std::uint64_t contentHash; // the same without the node's own name
        std::uint32_t firstSlot; // of its children
        std::uint32_t slotCount;
        std::uint32_t home; // the slot of its first use; `none` for the scene
        std::uint32_t end; // the number after the last node whose first use is in this node
        bool hasContent; // a field without its default, or a child
    };
    struct Slot {
        std::uint32_t node;
        std::uint32_t group;
    };

    explicit SceneDigest(NxGroup& scene);

    /// Visits about that many uses of nodes. Returns true if there is more to do. All else is valid when it has
    /// returned false.
    bool step(std::size_t budget);

    [[nodiscard]] std::uint32_t nodeCount() const noexcept { return static_cast<std::uint32_t>(m_nodes.size()); }
    [[nodiscard]] std::uint32_t slotCount() const noexcept { return static_cast<std::uint32_t>(m_slots.size()); }
    [[nodiscard]] const Node& node(std::uint32_t number) const noexcept { return m_nodes[number]; }
    [[nodiscard]] const Slot& slot(std::uint32_t number) const noexcept { return m_slots[number]; }
    /// The group of the first use of a node, which isn't the scene.
    [[nodiscard]] std::uint32_t parentOf(std::uint32_t number) const noexcept
    {
        return m_slots[m_nodes[number].home].group;
    }
    /// The index of a slot among the children of its group.
    [[nodiscard]] std::uint32_t placeOf(std::uint32_t slot) const noexcept
    {
        return slot - m_nodes[m_slots[slot].group].firstSlot;
    }
    /// From the scene on, each the index of a child: where a slot is.
    [[nodiscard]] std::vector<int> placesOf(std::uint32_t slot) const;

private:
    struct OpenNode {
        std::uint32_t number;
        std::uint32_t nextChild;
    };

    void open(NxNode* node, std::uint32_t home);
    void close();
    void visitChild(OpenNode& parent);
    void addToHash(std::uint32_t group, std::uint32_t child);
    [[nodiscard]] std::uint64_t hashFields(NxNode& node, bool& hasContent);
    [[nodiscard]] std::uint64_t hashClass(const NxNode& node);

    ChunkedList<Node> m_nodes;
    std::vector<Slot> m_slots;
    std::vector<OpenNode> m_open; // from the scene on
    std::unordered_map<const NxNode*, std::uint32_t> m_shared; // the numbers of nodes with several references
    std::string m_text; // of a value
    const char* m_lastClass = nullptr;
    std::uint64_t m_lastClassHash = 0;
};

} // namespace meridane
