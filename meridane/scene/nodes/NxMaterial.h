#pragma once

#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxNode.h"

/// The look of the surfaces that follow in the group.
class NxMaterial : public NxNode {
    NX_NODE(NxMaterial)

public:
    /// The part of the ambient light that is reflected, each component from 0 to 1.
    NxSFColor ambientColor{this, "ambientColor", VbColor(0.2F, 0.2F, 0.2F)};
    /// The colour of the surface in direct light, each component from 0 to 1.
    NxSFColor diffuseColor{this, "diffuseColor", VbColor(0.8F, 0.8F, 0.8F)};
    /// The colour of highlights, each component from 0 to 1.
    NxSFColor specularColor{this, "specularColor", VbColor(0, 0, 0)};
    /// The light that the surface gives off by itself, each component from 0 to 1.
    NxSFColor emissiveColor{this, "emissiveColor", VbColor(0, 0, 0)};
    /// How sharp highlights are, from 0 (wide) to 1 (small and sharp).
    NxSFFloat shininess{this, "shininess", 0.2F};
    /// How much shines through, from 0 (opaque) to 1 (invisible).
    NxSFFloat transparency{this, "transparency", 0};

protected:
    ~NxMaterial() override = default;
};
