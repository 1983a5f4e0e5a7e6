#pragma once

#include "meridane/scene/nodes/NodeTraversal.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class NxGroup;
class NxNode;

namespace meridane {

/// Examines a scene before it is written: counts its nodes, finds those that are used several times, and chooses the
/// text by which the file refers to each of them: its name if that is unique, else a label. Works in slices.
class SceneSharing {
public:
    struct SharedNode {
        std::string_view name; // to refer to it, if there is no label
        std::string label;
        bool written = false;
    };

    explicit SceneSharing(const NxGroup* scene);

    /// Visits about `budget` nodes. Returns true if there is more to do.
    bool step(std::size_t budget);
    /// The number of nodes, each counted once. This and the functions below are valid when `step` has returned false.
    [[nodiscard]] std::size_t nodeCount() const noexcept { return m_nodeCount; }
    /// The greatest depth of nested nodes.
    [[nodiscard]] std::size_t depth() const noexcept { return m_depth; }
    /// How the file refers to a node that is used several times; null for any other node.
    [[nodiscard]] SharedNode* find(const NxNode* node);

private:
    enum class Phase { Count, Names, Done };

    void visit(NxNode* node);
    void countName(NxNode* node);
    void finishCount();
    void assignLabels();

    const NxGroup* m_scene;
    Phase m_phase = Phase::Count;
    NodeTraversal m_traversal;
    std::size_t m_nodeCount = 0;
    std::size_t m_depth = 0;
    std::vector<const NxNode*> m_sharedInOrder;
    std::unordered_map<const NxNode*, SharedNode> m_shared;
    std::unordered_map<std::string_view, int> m_nameCounts; // of the names of shared nodes
    std::unordered_set<std::string_view> m_labelLikeNames;
};

} // namespace meridane
