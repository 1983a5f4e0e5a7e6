#include "orvane/import/mending/ColorMending.h"
#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/SourceFormat.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <assimp/GltfMaterial.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

std::optional<float> opacityOf(const aiMaterial& material)
{
    float opacity = 1;
    return material.Get(AI_MATKEY_OPACITY, opacity) == aiReturn_SUCCESS ? std::optional(opacity) : std::nullopt;
}

void setOpacity(aiMaterial& material, float opacity, std::string_view warning, ImportWarnings& warnings)
{
    material.AddProperty(&opacity, 1, AI_MATKEY_OPACITY);
    warnings.add(warning, materialName(material));
}

std::vector<aiMaterial*> materialsInUse(const aiScene& model)
{
    std::set<unsigned int> indices;
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes))
        indices.insert(mesh->mMaterialIndex);
    std::vector<aiMaterial*> used;
    for (const unsigned int index : indices) {
        if (index < model.mNumMaterials)
            used.push_back(model.mMaterials[index]);
    }
    return used;
}

// Some exporters write an opacity of 0 for opaque surfaces. Then no surface has the opacity 1.
void invertOpacities(const std::vector<aiMaterial*>& materials, ImportWarnings& warnings)
{
    const auto has = [&](float opacity) {
        return std::any_of(materials.begin(), materials.end(),
            [&](const aiMaterial* material) { return opacityOf(*material) == opacity; });
    };
    if (!has(0) || has(1))
        return;
    for (aiMaterial* material : materials) {
        if (const auto opacity = opacityOf(*material))
            setOpacity(*material, 1 - *opacity, "inverted the opacity of the materials", warnings);
    }
}

bool isInvisible(const aiMaterial& material)
{
    const float opacity = opacityOf(material).value_or(1);
    aiString mode;
    float cutoff = 0;
    const bool cutsOff = material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) == aiReturn_SUCCESS && viewOf(mode) == "MASK"
        && material.Get(AI_MATKEY_GLTF_ALPHACUTOFF, cutoff) == aiReturn_SUCCESS;
    return !(opacity > 0) || (cutsOff && opacity < cutoff);
}

void showInvisible(const std::vector<aiMaterial*>& materials, ImportWarnings& warnings)
{
    if (!std::all_of(materials.begin(), materials.end(), [](const aiMaterial* each) { return isInvisible(*each); }))
        return;
    for (aiMaterial* material : materials)
        setOpacity(*material, 1, "made opaque, since nothing would be seen, the materials", warnings);
}

// The library gives models without a material one that has every colour at its brightest, which would hide all shades.
void dimMadeUpMaterial(aiMaterial& material)
{
    const auto isWhite = [&](const char* key, unsigned int type, unsigned int index) {
        aiColor3D color;
        return material.Get(key, type, index, color) == aiReturn_SUCCESS && color == aiColor3D(1, 1, 1);
    };
    if (!materialName(material).empty() || !isWhite(AI_MATKEY_COLOR_AMBIENT) || !isWhite(AI_MATKEY_COLOR_DIFFUSE)
        || !isWhite(AI_MATKEY_COLOR_SPECULAR))
        return;
    material.RemoveProperty(AI_MATKEY_COLOR_AMBIENT);
    material.RemoveProperty(AI_MATKEY_COLOR_SPECULAR);
}

// A texture is multiplied by the colour. Some exporters write black where there is a texture, which would hide it.
void lightenTextured(aiMaterial& material)
{
    aiColor3D color;
    const bool isTextured = material.GetTextureCount(aiTextureType_DIFFUSE) > 0;
    if (!isTextured || material.Get(AI_MATKEY_COLOR_DIFFUSE, color) != aiReturn_SUCCESS || !color.IsBlack())
        return;
    color = aiColor3D(1, 1, 1);
    material.AddProperty(&color, 1, AI_MATKEY_COLOR_DIFFUSE);
}

// The library makes a roughness from the shininess of that format, which has its own meaning here.
void removeMadeUpSurfaces(const aiScene& model)
{
    for (aiMaterial* material : listOf(model.mMaterials, model.mNumMaterials)) {
        material->RemoveProperty(AI_MATKEY_METALLIC_FACTOR);
        material->RemoveProperty(AI_MATKEY_ROUGHNESS_FACTOR);
    }
}

// The format has the opacity of an opaque surface without a meaning.
void makeOpaque(aiScene& model)
{
    std::vector<bool> isOpaque;
    for (aiMaterial* material : listOf(model.mMaterials, model.mNumMaterials)) {
        const float opacity = 1;
        isOpaque.push_back(isDeclaredOpaque(*material));
        if (isOpaque.back())
            material->AddProperty(&opacity, 1, AI_MATKEY_OPACITY);
    }
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        if (mesh->mMaterialIndex >= isOpaque.size() || !isOpaque[mesh->mMaterialIndex])
            continue;
        for (aiColor4D& color : listOf(mesh->mColors[0], mesh->mNumVertices))
            color.a = 1;
    }
}

} // namespace

bool isDeclaredOpaque(const aiMaterial& material)
{
    aiString mode;
    if (material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) != aiReturn_SUCCESS)
        return false;
    float cutoff = 0;
    const bool cutsOff = material.Get(AI_MATKEY_GLTF_ALPHACUTOFF, cutoff) == aiReturn_SUCCESS && cutoff > 0;
    return viewOf(mode) == "OPAQUE" || (viewOf(mode) == "MASK" && !cutsOff);
}

void mendMaterials(aiScene& model, ImportWarnings& warnings)
{
    for (aiMaterial* material : listOf(model.mMaterials, model.mNumMaterials)) {
        dimMadeUpMaterial(*material);
        lightenTextured(*material);
    }
    if (hasSourceFormat(model, "Autodesk FBX"))
        removeMadeUpSurfaces(model);
    makeOpaque(model);
    const std::vector<aiMaterial*> used = materialsInUse(model);
    if (hasSourceFormat(model, "Collada"))
        invertOpacities(used, warnings);
    showInvisible(used, warnings);
}

} // namespace orvane
