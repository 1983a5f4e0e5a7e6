#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>
#include <vector>

/// What makes a scene equal to another one, while nodes of both stay the same objects. `NxSceneUpdate` finds it out.
///
/// It can be applied and taken back any number of times. The scene may be in any state, but only in the one from before
/// or after the changes is the result exact. It holds the nodes. Thread of the user interface only.
class NxSceneChanges {
public:
    /// What changes in one node.
    struct NodeChange {
        NxRef<NxNode> node; ///< the changed node, which stays the same object
        /// Has the name and the values that the node is to get; null if they stay.
        NxRef<NxNode> other;
        bool isRenamed = false; ///< whether it also gets the name of `other`
        std::vector<int> fields; ///< those with another value or ignored flag, by their index in the class
    };
    /// Some children of a group: those after the first `before` and before the last `after`.
    struct ChildrenChange {
        NxRef<NxGroup> group; ///< the group whose list changes
        int before = 0; ///< how many children at the start stay
        int after = 0; ///< how many children at the end stay
        std::vector<NxRef<NxNode>> children; ///< that the group is to get there
    };
    /// A node, and the one that takes its place since it is of another class or has other unknown fields.
    struct Replacement {
        NxRef<NxNode> node; ///< the node of the scene
        NxRef<NxNode> other; ///< the node of the other scene
    };

    /// Whether the scenes were equal.
    [[nodiscard]] bool isEmpty() const noexcept { return m_nodes.empty() && m_children.empty(); }
    /// Exchanges the changed places with what they are to become: the first call makes the changes, the second one
    /// takes them back, and so on. Throws `std::bad_alloc` for want of memory, with some of them made.
    void exchange();

    /// Makes the changes once and for all, which takes less time, and empties the object. Returns the top ones of the
    /// nodes that came and went. Throws like `exchange`.
    [[nodiscard]] std::vector<NxRef<NxNode>> apply();

    /// The node that takes the place of a node of the scene, or null.
    [[nodiscard]] NxNode* replacementOf(const NxFieldContainer* node) const;
    /// The top ones of the nodes that come and go.
    [[nodiscard]] std::vector<NxRef<NxNode>> nodes() const;

    // For the update.
    /// Adds a change of a node, before the first `exchange` or `apply`.
    void add(NodeChange change) { m_nodes.push_back(std::move(change)); }
    /// Adds a change of a list of children, before the first `exchange` or `apply`.
    void add(ChildrenChange change) { m_children.push_back(std::move(change)); }
    /// Notes which node takes the place of another one. The changes of children do the replacing.
    void add(Replacement replacement) { m_replacements.push_back(std::move(replacement)); }

private:
    /// The nodes that left, for each change of children.
    [[nodiscard]] std::vector<std::vector<NxRef<NxNode>>> change();

    std::vector<NodeChange> m_nodes;
    std::vector<ChildrenChange> m_children;
    std::vector<Replacement> m_replacements;
};
