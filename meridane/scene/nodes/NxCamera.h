#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxNode.h"

/// A place to look at the scene from. The base of the two kinds. Without rotation a camera looks along negative z, with
/// y upwards.
class NxCamera : public NxNode {
public:
    [[nodiscard]] static NxType getClassTypeId();

    /// Where the camera is, in scene units.
    NxSFVec3f position{this, "position", VbVec3f(0, 0, 1)};
    /// How the camera is turned: axis, and angle in radians.
    NxSFRotation orientation{this, "orientation"};
    /// Nothing closer than this is seen, in scene units; above 0.
    NxSFFloat nearDistance{this, "nearDistance", 0.1F};
    /// Nothing farther away than this is seen, in scene units; above `nearDistance`.
    NxSFFloat farDistance{this, "farDistance", 1000};

protected:
    NxCamera() = default;
    ~NxCamera() override = default;
};
