#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxNode.h"

/// A place to look at the scene from. The base of the two kinds. Without rotation a camera looks along negative z, with
/// y upwards.
class NxCamera : public NxNode {
public:
    /// The run-time type of both kinds of camera, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

    NxSFVec3f position{this, {"position", "Where the camera is.", NxUnit::Metres}, VbVec3f(0, 0, 1)};
    NxSFRotation orientation{this,
        {"orientation", "How the camera is turned from looking along negative z with y upwards.", NxUnit::Radians,
            meridane::step(meridane::degree)}};
    NxSFFloat nearDistance{this,
        {"nearDistance", "How close to the camera a thing may be and still be seen.", NxUnit::Metres,
            meridane::above(0)},
        0.1F};
    NxSFFloat farDistance{this,
        {"farDistance", "How far from the camera a thing may be and still be seen, more than nearDistance.",
            NxUnit::Metres, meridane::above(0)},
        1000};

protected:
    NxCamera() = default;
    ~NxCamera() override = default;
};
