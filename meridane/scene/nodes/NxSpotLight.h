#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxLight.h"

/// A lamp that shines into a cone.
class NxSpotLight : public NxLight {
    NX_NODE(NxSpotLight)

public:
    /// Where the lamp is, the tip of the cone, in scene units.
    NxSFVec3f location{this, "location", VbVec3f(0, 0, 1)};
    /// The axis of the cone; of any length but 0.
    NxSFVec3f direction{this, "direction", VbVec3f(0, 0, -1)};
    /// The angle between the axis and the side of the cone in radians, from 0 to half of pi.
    NxSFFloat cutOffAngle{this, "cutOffAngle", 0.7853982F};
    /// How the light fades from the axis to the side, from 0 (not at all) to 1 (most).
    NxSFFloat dropOffRate{this, "dropOffRate", 0};

protected:
    ~NxSpotLight() override = default;
};
