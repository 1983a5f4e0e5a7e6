#include "orvane/import/mending/EmissionMending.h"

#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/SourceFormat.h"
#include "orvane/import/mending/Texts.h"

#include <string>
#include <string_view>
#include <vector>

#include <assimp/GltfMaterial.h>

namespace orvane {
namespace {

const aiColor3D black(0, 0, 0);

std::string pathOf(const aiMaterial& material, aiTextureType type)
{
    aiString path;
    return material.GetTexture(type, 0, &path) == aiReturn_SUCCESS ? std::string(viewOf(path)) : std::string();
}

aiColor3D colorOf(const aiMaterial& material, const char* key, unsigned int type, unsigned int index)
{
    aiColor3D color = black;
    material.Get(key, type, index, color);
    return color;
}

void setColor(aiMaterial& material, const aiColor3D& color, const char* key, unsigned int type, unsigned int index)
{
    material.AddProperty(&color, 1, key, type, index);
}

/// Makes the texture of the emission that of the colour too.
void useEmissionAsColor(aiMaterial& material)
{
    const unsigned int count = material.mNumProperties;
    for (unsigned int index = 0; index < count; ++index) {
        const aiMaterialProperty& property = *material.mProperties[index];
        if (property.mSemantic == aiTextureType_EMISSIVE && property.mIndex == 0)
            material.AddBinaryProperty(
                property.mData, property.mDataLength, property.mKey.C_Str(), aiTextureType_DIFFUSE, 0, property.mType);
    }
}

// The drawing multiplies the emission by the texture of the colour.
void mendEmissionTexture(aiMaterial& material, ImportWarnings& warnings)
{
    const std::string emission = pathOf(material, aiTextureType_EMISSIVE);
    if (emission.empty() || colorOf(material, AI_MATKEY_COLOR_EMISSIVE).IsBlack())
        return;
    std::string color = pathOf(material, aiTextureType_DIFFUSE);
    if (color.empty())
        color = pathOf(material, aiTextureType_BASE_COLOR);
    if (color == emission)
        return;
    if (color.empty() && colorOf(material, AI_MATKEY_COLOR_DIFFUSE).IsBlack()) {
        useEmissionAsColor(material);
        return;
    }
    // Without its texture, all of the surface would shine.
    setColor(material, black, AI_MATKEY_COLOR_EMISSIVE);
    warnings.add("left out the emission, which has a texture of its own, of the materials", materialName(material));
}

bool isUnlit(const aiMaterial& material)
{
    int model = aiShadingMode_Phong;
    return material.Get(AI_MATKEY_SHADING_MODEL, model) == aiReturn_SUCCESS && model == aiShadingMode_NoShading;
}

// A surface of one colour that shines in it and reflects nothing looks the same whatever the light.
void mendUnlit(aiMaterial& material, bool hasVertexColors, ImportWarnings& warnings)
{
    if (hasVertexColors) {
        warnings.add("lit, although they should look the same in any light, surfaces with vertex colours of the "
                     "materials",
            materialName(material));
        return;
    }
    setColor(material, colorOf(material, AI_MATKEY_COLOR_DIFFUSE), AI_MATKEY_COLOR_EMISSIVE);
    setColor(material, black, AI_MATKEY_COLOR_DIFFUSE);
    setColor(material, black, AI_MATKEY_COLOR_AMBIENT);
    setColor(material, black, AI_MATKEY_COLOR_SPECULAR);
    material.RemoveProperty(AI_MATKEY_METALLIC_FACTOR);
    material.RemoveProperty(AI_MATKEY_ROUGHNESS_FACTOR);
}

void reportUndrawn(const aiMaterial& material, ImportWarnings& warnings)
{
    if (material.GetTextureCount(aiTextureType_LIGHTMAP) > 0)
        warnings.add("left out the occlusion textures of the materials", materialName(material));
    float strength = 1;
    const bool hasStrength
        = material.Get(AI_MATKEY_GLTF_TEXTURE_SCALE(aiTextureType_NORMALS, 0), strength) == aiReturn_SUCCESS;
    if (hasStrength && strength != 1)
        warnings.add("drawn with full strength the normal maps of the materials", materialName(material));
}

} // namespace

void mendEmission(aiScene& model, ImportWarnings& warnings)
{
    std::vector<bool> isUsed(model.mNumMaterials);
    std::vector<bool> hasVertexColors(model.mNumMaterials);
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        if (mesh->mMaterialIndex >= isUsed.size())
            continue;
        isUsed[mesh->mMaterialIndex] = true;
        if (mesh->HasVertexColors(0))
            hasVertexColors[mesh->mMaterialIndex] = true;
    }
    const bool isGltf = hasSourceFormat(model, "glTF2");
    for (unsigned int index = 0; index < model.mNumMaterials; ++index) {
        aiMaterial* const material = model.mMaterials[index];
        if (material == nullptr || !isUsed[index])
            continue;
        if (isGltf && isUnlit(*material))
            mendUnlit(*material, hasVertexColors[index], warnings);
        else
            mendEmissionTexture(*material, warnings);
        if (isGltf)
            reportUndrawn(*material, warnings);
    }
}

} // namespace orvane
