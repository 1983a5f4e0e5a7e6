#pragma once

#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/nodes/NxNode.h"

#include <memory>
#include <span>
#include <vector>

/// A node in one of its places in the scene, remembered while the scene changes. It doesn't keep the node alive.
class ScenePlace {
public:
    /// `path` leads from a child of the scene down to the node, and isn't empty.
    explicit ScenePlace(std::span<NxNode* const> path);

    /// The node, which may have left the scene; null once it is destroyed.
    [[nodiscard]] NxNode* node() const noexcept;
    /// The path to the node if it is still in its place below `scene`; else an empty one.
    [[nodiscard]] std::vector<NxNode*> path(const NxNode& scene) const;
    /// The same, or the path to another place of the node, which takes time in proportion to the scene.
    [[nodiscard]] std::vector<NxNode*> find(const NxNode& scene) const;

private:
    std::unique_ptr<NxNodeSensor> m_node; // which notices when the node is destroyed
    std::vector<const NxNode*> m_path; // compared only, since these may be destroyed
};
