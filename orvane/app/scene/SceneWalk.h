#pragma once

#include <cstddef>
#include <span>
#include <unordered_set>
#include <vector>

class NxNode;

/// Visits the nodes below a node in the order of the scene. It has a stack of its own, because deeply nested scenes
/// would overflow the call stack.
///
/// The caller decides which nodes are entered:
///
///     SceneWalk walk(*scene);
///     while (NxNode* node = walk.next())
///         walk.enterOnce();
///
/// The nodes must live as long as the walk, and their lists of children must not change meanwhile.
class SceneWalk {
public:
    /// Starts before the first child of `top`.
    explicit SceneWalk(const NxNode& top);

    /// The next node, or null at the end.
    [[nodiscard]] NxNode* next();
    /// Continues with the children of the node that `next` returned last, if it has any.
    void enter();
    /// Does the same, unless this walk has entered that node before, in another of its places.
    void enterOnce();

    /// The nodes from the first level down to the one that `next` returned last.
    [[nodiscard]] std::vector<NxNode*> path() const;
    /// For each node of `path`, its index in the list of children that it is in.
    [[nodiscard]] std::vector<int> indices() const;

private:
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };

    std::vector<Level> m_levels;
    std::unordered_set<const NxNode*> m_entered; // by `enterOnce`
};
