#pragma once

#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxNode.h"

/// A source of light for what follows in its group. The base of the three kinds.
class NxLight : public NxNode {
public:
    /// The run-time type of the three kinds of light, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

    NxSFBool on{this, {"on", "Whether the light shines."}, true};
    NxSFFloat intensity{
        this, {"intensity", "How bright the light is, from dark (0) to full (1).", meridane::range(0, 1)}, 1};
    NxSFColor color{this, {"color", "The colour of the light.", meridane::range(0, 1)}, VbColor(1, 1, 1)};

protected:
    NxLight() = default;
    ~NxLight() override = default;
};
