#pragma once

#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxGroup.h"

/// A group whose children are placed relative to the group above: scaled and turned about `center`, then moved.
/// Transforms add up along the way from the scene down.
class NxTransform : public NxGroup {
    NX_NODE(NxTransform)

public:
    NxSFVec3f translation{this, {"translation", "How far the children are moved along x, y and z.", NxUnit::Metres}};
    NxSFRotation rotation{this,
        {"rotation",
            "How the children are turned: about an axis of any length but 0, counter-clockwise when it points at the "
            "viewer.",
            NxUnit::Radians, meridane::step(meridane::degree)}};
    NxSFVec3f scaleFactor{
        this, {"scaleFactor", "The factors along x, y and z, of which a negative one mirrors."}, VbVec3f(1, 1, 1)};
    NxSFVec3f center{this,
        {"center", "The point about which the children are scaled and turned, in their own units.", NxUnit::Metres}};

protected:
    ~NxTransform() override = default;
};
