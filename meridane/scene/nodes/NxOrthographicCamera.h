#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxCamera.h"

/// A camera that sees things of the same size at any distance.
class NxOrthographicCamera : public NxCamera {
    NX_NODE(NxOrthographicCamera)

public:
    /// The height of what is seen, in scene units; above 0.
    NxSFFloat height{this, "height", 2};

protected:
    ~NxOrthographicCamera() override = default;
};
