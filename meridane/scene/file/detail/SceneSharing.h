#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace meridane {

/// Looks a scene over before it is written: counts its nodes, and finds those that stand in several places and the
/// text by which a file refers to each of them. That is its name where no other node has it, else a label. Works in
/// slices.
class SceneSharing {
public:
    struct SharedNode {
        std::string_view name; // to refer to it, if there is no label
        std::string label;
        bool written = false;
    };

    explicit SceneSharing(const NxGroup* scene);

    /// Looks at about `budget` nodes. True when there is more to do.
    bool step(std::size_t budget);
    /// The number of nodes, each counted once. Complete when `step` is done, as all that follows.
    [[nodiscard]] std::size_t nodeCount() const noexcept { return m_nodeCount; }
    /// How deep the nodes stand in each other.
    [[nodiscard]] std::size_t depth() const noexcept { return m_depth; }
    /// What is known of a node that stands in several places; null for any other node.
    [[nodiscard]] SharedNode* find(const NxNode* node);

private:
    enum class Phase { Count, Names, Done };

    /// A group whose children are being looked at.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };

    void start(Phase phase);
    void visit(NxNode* node);
    void countName(NxNode* node);
    bool isFirstVisit(const NxNode* node);
    void finishCount();
    void assignLabels();

    const NxGroup* m_scene;
    Phase m_phase = Phase::Count;
    std::vector<Level> m_levels;
    std::size_t m_nodeCount = 0;
    std::size_t m_depth = 0;
    std::unordered_set<const NxNode*> m_visited; // of the nodes with several references
    std::vector<const NxNode*> m_sharedInOrder;
    std::unordered_map<const NxNode*, SharedNode> m_shared;
    std::unordered_map<std::string_view, int> m_nameCounts; // of the names of shared nodes
    std::unordered_set<std::string_view> m_labelLikeNames;
};

} // namespace meridane
