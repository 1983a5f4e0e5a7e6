#pragma once

#include "meridane/scene/NxCamera.h"
#include "meridane/scene/NxSFFloat.h"

/// A camera that sees things of the same size at any distance.
class NxOrthographicCamera : public NxCamera {
    NX_NODE(NxOrthographicCamera)

public:
    /// The height of what is seen, in scene units; above 0.
    NxSFFloat height{this, "height", 2};

protected:
    ~NxOrthographicCamera() override = default;
};
