#pragma once

#include <optional>
#include <unordered_map>

class NxGroup;
class NxNode;

/// In how many places of a scene its nodes are. The scene is counted when it is first asked; its structure must not
/// change as long as the object is used.
class NodeUses {
public:
    explicit NodeUses(NxGroup& scene)
        : m_scene(scene)
    {
    }

    /// How many lists of children have the node, each as often as the node is in it.
    [[nodiscard]] int count(const NxNode& node);

private:
    NxGroup& m_scene;
    std::optional<std::unordered_map<const NxNode*, int>> m_counts; // of those with several references
};
