#pragma once

#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxLight.h"

/// A lamp that shines into all directions.
class NxPointLight : public NxLight {
    NX_NODE(NxPointLight)

public:
    NxSFVec3f location{this, {"location", "Where the lamp is.", NxUnit::Metres}, VbVec3f(0, 0, 1)};
    NxSFVec3f attenuation{this,
        {"attenuation", "How the light fades with the distance d: it is divided by x + y d + z d².",
            meridane::atLeast(0)},
        VbVec3f(1, 0, 0)};

protected:
    ~NxPointLight() override = default;
};
