#pragma once

#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

/// A node in one of its places in the scene, remembered while the scene changes. It doesn't keep the node alive.
class ScenePlace {
public:
    /// `path` leads from a child of the scene down to the node, and isn't empty. `rows` are the indices of its nodes in
    /// their groups, if they are known; then the place is found without a look at the other children.
    explicit ScenePlace(std::span<NxNode* const> path, std::span<const int> rows = {});

    /// The node, which may have left the scene; null once it is destroyed.
    [[nodiscard]] NxNode* node() const noexcept;
    /// The path to the node if it is still in its place below `scene`; else an empty one.
    [[nodiscard]] std::vector<NxNode*> path(const NxNode& scene) const;
    /// The indices of the nodes of that path in their groups.
    [[nodiscard]] std::vector<int> rows(const NxNode& scene) const;
    /// `path`, or the path to another place of the node, which takes time in proportion to the scene.
    [[nodiscard]] std::vector<NxNode*> find(const NxNode& scene) const;

private:
    struct Step {
        const NxNode* node; // compared only, since it may be destroyed
        std::size_t row; // where it was last
    };

    std::unique_ptr<NxNodeSensor> m_node; // which notices when the node is destroyed
    mutable std::vector<Step> m_path;
};
