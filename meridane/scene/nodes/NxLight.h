#pragma once

#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxNode.h"

/// A source of light for what follows in its group. The base of the three kinds.
class NxLight : public NxNode {
public:
    [[nodiscard]] static NxType getClassTypeId();

    /// Whether the light shines.
    NxSFBool on{this, "on", true};
    /// How bright the light is, from 0 (dark) to 1 (full).
    NxSFFloat intensity{this, "intensity", 1};
    /// The colour of the light, each component from 0 to 1.
    NxSFColor color{this, "color", VbColor(1, 1, 1)};

protected:
    NxLight() = default;
    ~NxLight() override = default;
};
