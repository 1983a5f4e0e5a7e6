#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <functional>
#include <memory>
#include <vector>

class NxCamera;

/// Looks through a camera of the scene, and follows it and the transforms above it when they are edited.
class CameraFollower {
public:
    /// Called with what the camera sees, from `follow` and after each change.
    using Look = std::function<void(const NxViewpoint& viewpoint)>;

    explicit CameraFollower(Look look);

    /// What the camera sees that these nodes lead to, each a child of the one before.
    [[nodiscard]] static NxViewpoint viewpointOf(const std::vector<NxNode*>& nodes);

    /// Looks through the last of these nodes, each a child of the one before; does nothing if it is no camera.
    void follow(const std::vector<NxNode*>& nodes);
    void stop();
    /// The camera that is looked through, or null.
    [[nodiscard]] NxCamera* camera() const noexcept;

private:
    static void changed(void* follower, NxSensor* sensor);
    void look() const;

    Look m_look;
    std::vector<NxRef<NxNode>> m_nodes;
    std::vector<std::unique_ptr<NxNodeSensor>> m_sensors; // one for each of the nodes
};
