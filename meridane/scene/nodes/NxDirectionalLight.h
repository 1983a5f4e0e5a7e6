#pragma once

#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxLight.h"

/// Light from very far away, the same everywhere, such as that of the sun.
class NxDirectionalLight : public NxLight {
    NX_NODE(NxDirectionalLight)

public:
    NxSFVec3f direction{this, {"direction", "Where the rays go, as a vector of any length but 0."}, VbVec3f(0, 0, -1)};

protected:
    ~NxDirectionalLight() override = default;
};
