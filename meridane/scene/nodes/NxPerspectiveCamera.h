#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxCamera.h"

/// A camera that sees distant things smaller.
class NxPerspectiveCamera : public NxCamera {
    NX_NODE(NxPerspectiveCamera)

public:
    /// The angle between the lower and the upper border of the picture in radians, above 0 and below pi.
    NxSFFloat heightAngle{this, "heightAngle", 0.7853982F};

protected:
    ~NxPerspectiveCamera() override = default;
};
