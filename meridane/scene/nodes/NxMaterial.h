#pragma once

#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxNode.h"

/// The look of the surfaces that follow in the group.
///
/// Highlights follow from `specularColor` and `shininess`. If `metalness` or `roughness` hasn't its default, or a
/// texture with the role `NxTexture::METAL_ROUGHNESS` applies, they follow from these two instead.
class NxMaterial : public NxNode {
    NX_NODE(NxMaterial)

public:
    NxSFColor ambientColor{this,
        {"ambientColor", "The part of the ambient light that is reflected.", meridane::range(0, 1)},
        VbColor(0.2F, 0.2F, 0.2F)};
    NxSFColor diffuseColor{this, {"diffuseColor", "The colour of the surface in direct light.", meridane::range(0, 1)},
        VbColor(0.8F, 0.8F, 0.8F)};
    NxSFColor specularColor{
        this, {"specularColor", "The colour of highlights.", meridane::range(0, 1)}, VbColor(0, 0, 0)};
    NxSFColor emissiveColor{this,
        {"emissiveColor", "The light that the surface gives off by itself.", meridane::range(0, 1)}, VbColor(0, 0, 0)};
    NxSFFloat shininess{this,
        {"shininess", "How sharp highlights are, from wide (0) to small and sharp (1).", meridane::range(0, 1)}, 0.2F};
    NxSFFloat transparency{
        this, {"transparency", "How much shines through, from opaque (0) to invisible (1).", meridane::range(0, 1)}, 0};
    NxSFFloat metalness{this,
        {"metalness", "How metallic the surface is, from plastic or stone (0) to bare metal (1).",
            meridane::range(0, 1)},
        0};
    NxSFFloat roughness{this,
        {"roughness",
            "How rough the surface is, from a mirror (0) to dull (1); below 1, or with some metalness, specularColor "
            "and "
            "shininess have no effect.",
            meridane::range(0, 1)},
        1};
    NxSFBool doubleSided{this,
        {"doubleSided", "Whether triangles are also seen from behind, where their corners are in clockwise order."},
        true};
    NxSFFloat alphaCutoff{this,
        {"alphaCutoff", "The opacity below which nothing is drawn, while all else is opaque; 0 draws every opacity.",
            meridane::range(0, 1)},
        0};

protected:
    ~NxMaterial() override = default;
};
