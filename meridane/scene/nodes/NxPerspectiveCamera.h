#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxCamera.h"

#include <numbers>

/// A camera that sees distant things smaller.
class NxPerspectiveCamera : public NxCamera {
    NX_NODE(NxPerspectiveCamera)

public:
    NxSFFloat heightAngle{this,
        {"heightAngle", "The angle between the lower and the upper border of the picture.", NxUnit::Radians,
            meridane::between(0, std::numbers::pi), meridane::step(meridane::degree)},
        0.7853982F};

protected:
    ~NxPerspectiveCamera() override = default;
};
