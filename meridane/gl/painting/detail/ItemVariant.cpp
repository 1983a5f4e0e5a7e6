#include "meridane/gl/painting/detail/ItemVariant.h"

#include "meridane/gl/places/detail/MeshInspection.h"
#include "meridane/scene/nodes/NxMesh.h"

namespace meridane {

bool isBox(const Look& look)
{
    return look.complexity != nullptr && look.complexity->values.type == NxComplexity::BOUNDING_BOX;
}

float textureQuality(const Look& look)
{
    return look.complexity == nullptr ? ComplexityValues().textureQuality : look.complexity->values.textureQuality;
}

const MaterialValues& materialOf(const Look& look)
{
    static const MaterialValues usual = materialValues(nullptr);
    return look.material == nullptr ? usual : look.material->values;
}

bool isSingleSided(const Look& look)
{
    return materialOf(look).isDoubleSided == 0;
}

SurfaceVariant variantOf(const MeshShape& shape, const Look& look)
{
    const MaterialValues& material = materialOf(look);
    const bool showsTextures = shape.hasCoordinates && textureQuality(look) > 0;
    const auto shows = [&](NxTexture::Role role) {
        const TextureRecord* texture = look.textures[role];
        return showsTextures && texture != nullptr && texture->name != 0;
    };
    SurfaceVariant variant;
    if (shape.primitive == NxMesh::TRIANGLES) {
        variant.light = shape.hasNormals ? SurfaceVariant::Smooth : SurfaceVariant::Flat;
        variant.hasNormalMap = shows(NxTexture::NORMAL);
        variant.hasSurfaceMap = shows(NxTexture::METAL_ROUGHNESS);
        variant.isPhysical = variant.hasSurfaceMap || material.isPhysical();
    } else {
        variant.light = shape.hasNormals ? SurfaceVariant::Line : SurfaceVariant::Unlit;
    }
    variant.isTextured = shows(NxTexture::COLOR);
    variant.hasColors = shape.colors != MeshShape::Colors::None;
    variant.isCutOut = material.alphaCutoff > 0;
    return variant;
}

SurfaceColors colorsOf(NxDrawingStyle::Shading shading) noexcept
{
    switch (shading) {
    case NxDrawingStyle::NORMALS:
        return SurfaceColors::Normals;
    case NxDrawingStyle::CHECKER:
        return SurfaceColors::Coordinates;
    case NxDrawingStyle::VERTEX_COLORS:
        return SurfaceColors::Own;
    case NxDrawingStyle::SHADED:
    case NxDrawingStyle::UNLIT:
        break;
    }
    return SurfaceColors::Material;
}

SurfaceVariant variantOf(const MeshShape& shape, const Look& look, NxDrawingStyle::Shading shading)
{
    const SurfaceVariant lit = variantOf(shape, look);
    if (shading == NxDrawingStyle::SHADED)
        return lit;
    SurfaceVariant variant;
    if (shading == NxDrawingStyle::UNLIT) {
        variant.isTextured = lit.isTextured;
        variant.isCutOut = lit.isCutOut;
    } else {
        variant.light = lit.light;
        variant.isTextured = shading == NxDrawingStyle::CHECKER && shape.hasCoordinates;
    }
    const bool showsColors = shading == NxDrawingStyle::UNLIT || shading == NxDrawingStyle::VERTEX_COLORS;
    variant.hasColors = showsColors && lit.hasColors;
    return variant;
}

bool isTranslucent(const MeshShape& shape, const Look& look, SurfaceVariant variant)
{
    if (variant.isCutOut)
        return false;
    const bool byColor = variant.hasColors ? shape.isTranslucent : materialOf(look).opacity < 1;
    return byColor || (variant.isTextured && look.textures[NxTexture::COLOR]->isTranslucent);
}

} // namespace meridane
