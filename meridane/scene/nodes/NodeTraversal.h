#pragma once

#include <cstddef>
#include <span>
#include <unordered_set>
#include <vector>

class NxNode;

namespace meridane {

/// Visits the nodes below a node in the order of a scene file: parents before their children. A scene that was written
/// and read again has the same order. A node that is in several places is entered at its first use only.
///
///     NodeTraversal nodes(*scene);
///     while (NxNode* node = nodes.next())
///         node->setName("");
///
/// The nodes must live as long as the traversal, and their lists of children must not change meanwhile. Nodes may be
/// nested to any depth.
class NodeTraversal {
public:
    /// Starts before the first child of `top`, which isn't visited itself.
    explicit NodeTraversal(const NxNode& top);

    /// The next node, each one at its first use only; null after the last one.
    [[nodiscard]] NxNode* next();
    /// The next use of a node: a node that is in several places comes in each of them, its children only after the
    /// first. Null after the last one.
    [[nodiscard]] NxNode* nextUse();

    // The functions below are about the latest node; call them only after `next` or `nextUse`.

    /// Whether it was returned for the first time.
    [[nodiscard]] bool isFirstUse() const noexcept { return m_isFirstUse; }
    /// Its depth: 1 for a child of `top`; 0 after the last node.
    [[nodiscard]] std::size_t depth() const noexcept { return m_levels.size(); }
    /// The nodes from a child of `top` down to it; empty after the last node.
    [[nodiscard]] std::vector<NxNode*> path() const;
    /// For each node of `path`, its index in the list of children that it is in.
    [[nodiscard]] std::vector<int> indices() const;

private:
    /// A list of children that is being visited.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;

        [[nodiscard]] NxNode* latest() const { return children[next - 1]; }
    };

    std::vector<Level> m_levels;
    std::unordered_set<const NxNode*> m_visited; // of the nodes with several references
    bool m_isFirstUse = false;
};

/// Whether `wanted` is below one of these nodes, at any depth.
[[nodiscard]] bool isAbove(std::span<NxNode* const> nodes, const NxNode* wanted);

} // namespace meridane
