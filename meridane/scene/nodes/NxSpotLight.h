#pragma once

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/nodes/NxLight.h"

#include <numbers>

/// A lamp that shines into a cone.
class NxSpotLight : public NxLight {
    NX_NODE(NxSpotLight)

public:
    NxSFVec3f location{this, {"location", "Where the lamp is, the tip of the cone.", NxUnit::Metres}, VbVec3f(0, 0, 1)};
    NxSFVec3f direction{
        this, {"direction", "The axis of the cone, as a vector of any length but 0."}, VbVec3f(0, 0, -1)};
    NxSFFloat cutOffAngle{this,
        {"cutOffAngle", "The angle between the axis and the side of the cone.", NxUnit::Radians,
            meridane::range(0, std::numbers::pi / 2), meridane::step(meridane::degree)},
        0.7853982F};
    NxSFFloat dropOffRate{this,
        {"dropOffRate", "How the light fades from the axis to the side, from not at all (0) to most (1).",
            meridane::range(0, 1)},
        0};

protected:
    ~NxSpotLight() override = default;
};
