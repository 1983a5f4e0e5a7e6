#pragma once

#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxGroup.h"

/// A group whose children are placed relative to the group above: scaled and turned about `center`, then moved.
/// Transforms add up along the way from the scene down.
class NxTransform : public NxGroup {
    NX_NODE(NxTransform)

public:
    /// How far the children are moved along x, y and z, in scene units.
    NxSFVec3f translation{this, "translation"};
    /// How the children are turned: an axis of any length but 0, and an angle in radians, counter-clockwise when the
    /// axis points at the viewer.
    NxSFRotation rotation{this, "rotation"};
    /// The factors along x, y and z; a negative one mirrors.
    NxSFVec3f scaleFactor{this, "scaleFactor", VbVec3f(1, 1, 1)};
    /// The point about which the children are scaled and turned, in their own units.
    NxSFVec3f center{this, "center"};

protected:
    ~NxTransform() override = default;
};
