#pragma once

#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxLight.h"

/// Light from very far away, the same everywhere, such as that of the sun.
class NxDirectionalLight : public NxLight {
    NX_NODE(NxDirectionalLight)

public:
    /// Where the rays go; of any length but 0.
    NxSFVec3f direction{this, "direction", VbVec3f(0, 0, -1)};

protected:
    ~NxDirectionalLight() override = default;
};
