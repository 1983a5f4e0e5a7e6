#pragma once

#include "meridane/scene/nodes/NxNode.h"

namespace meridane {

class ChildrenRecord;
class SceneParser;

} // namespace meridane

/// A node that holds other nodes, in order. Lights, materials, textures and complexities in a group apply to the
/// children that follow them in that group, and to nothing outside it.
///
/// A group holds a reference to each child. Every change of the list notifies the group's node sensors.
class NxGroup : public NxNode {
    NX_NODE(NxGroup)

public:
    [[nodiscard]] std::span<NxNode* const> getChildren() const override;

    /// The number of children; a node that is a child twice counts twice.
    [[nodiscard]] int getNumChildren() const noexcept { return static_cast<int>(m_children.size()); }
    /// The child at that index, or null when there is none.
    [[nodiscard]] NxNode* getChild(int index) const;
    /// A number that changes with the list of children. No other list of any group has or had the same number, so that
    /// lists can be compared even if nodes of one have the addresses of destroyed nodes of the other.
    [[nodiscard]] std::uint64_t getChildrenRevision() const noexcept { return m_childrenRevision; }
    /// The index of the first use of the node, or -1.
    [[nodiscard]] int findChild(const NxNode* node) const;

    /// Appends a node. Returns false and changes nothing for null, this group, and a node that contains this group.
    bool addChild(NxNode* node);
    /// Inserts a node before that index, 0 to `getNumChildren`. Returns false as `addChild` does, and for an index out
    /// of range.
    bool insertChild(NxNode* node, int index);
    /// Removes the child at that index and releases the reference to it. Returns false for an index out of range.
    bool removeChild(int index);
    /// Removes all children as one change and releases the references to them. Does nothing for a group without
    /// children.
    void removeAllChildren();
    /// Replaces `count` children from that index on by other nodes, as one change. Returns false and changes nothing if
    /// there are no such children, and if one of the nodes is null, this group, or a node that contains this group.
    bool replaceChildren(int index, int count, std::span<NxNode* const> nodes);

protected:
    ~NxGroup() override;

private:
    friend class meridane::ChildrenRecord;
    friend class meridane::SceneParser;

    /// For a node that is known not to contain this group; `group` is the same node, or null if it is none.
    void appendUnchecked(NxNode* node, NxGroup* group);
    void noteChildrenChange() noexcept;
    /// Reports that these nodes are about to replace the children from `first` to before `end`. The new ones are
    /// followed from then on.
    void recordChildren(std::size_t first, std::size_t end, std::span<NxNode* const> nodes);
    static void hold(NxNode* node);
    static void release(NxNode* node);

    std::vector<NxNode*> m_children;
    std::uint64_t m_childrenRevision = 0;
    std::size_t m_places = 0; // where groups contain this one
};
