#pragma once

#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxLight.h"

/// A lamp that shines into all directions.
class NxPointLight : public NxLight {
    NX_NODE(NxPointLight)

public:
    /// Where the lamp is, in scene units.
    NxSFVec3f location{this, "location", VbVec3f(0, 0, 1)};
    /// How the light fades with the distance d in scene units: the light is divided by x + y d + z d², none of them
    /// negative.
    NxSFVec3f attenuation{this, "attenuation", VbVec3f(1, 0, 0)};

protected:
    ~NxPointLight() override = default;
};
