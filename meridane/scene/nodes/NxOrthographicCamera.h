#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxCamera.h"

/// A camera that sees things of the same size at any distance.
class NxOrthographicCamera : public NxCamera {
    NX_NODE(NxOrthographicCamera)

public:
    NxSFFloat height{this, {"height", "The height of what is seen.", NxUnit::Metres, meridane::above(0)}, 2};

protected:
    ~NxOrthographicCamera() override = default;
};
