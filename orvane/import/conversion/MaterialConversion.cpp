#include "orvane/import/conversion/MaterialConversion.h"

#include "orvane/import/mending/ColorMending.h"
#include "orvane/import/mending/Names.h"
#include "orvane/import/mending/Texts.h"
#include "orvane/import/pictures/ImageCodec.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

#include <assimp/GltfMaterial.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

// The exponent of the sharpest highlight that a scene can have.
constexpr float greatestExponent = 128;

// In glTF one texture has the metalness and the roughness; the library has no type for it.
constexpr aiTextureType gltfSurfaceType = aiTextureType_UNKNOWN;

/// Where the library keeps the textures of a role. Physically based formats use kinds of their own.
std::span<const aiTextureType> typesOf(NxTexture::Role role)
{
    static constexpr aiTextureType colors[] = {aiTextureType_DIFFUSE, aiTextureType_BASE_COLOR};
    static constexpr aiTextureType normals[] = {aiTextureType_NORMALS, aiTextureType_NORMAL_CAMERA};
    static constexpr aiTextureType surfaces[] = {gltfSurfaceType};
    switch (role) {
    case NxTexture::NORMAL:
        return normals;
    case NxTexture::METAL_ROUGHNESS:
        return surfaces;
    case NxTexture::COLOR:
        break;
    }
    return colors;
}

bool statesAlphaMode(const aiMaterial& material)
{
    aiString mode;
    return material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) == aiReturn_SUCCESS;
}

bool takeColor(const aiMaterial& material, NxSFColor& field, const char* key, unsigned int type, unsigned int index)
{
    aiColor3D color;
    if (material.Get(key, type, index, color) != aiReturn_SUCCESS)
        return false;
    field.setValue(VbColor(color.r, color.g, color.b));
    return true;
}

aiTextureType textureTypeOf(const aiMaterial& material, NxTexture::Role role)
{
    if (role == NxTexture::METAL_ROUGHNESS && !statesAlphaMode(material))
        return aiTextureType_NONE;
    for (const aiTextureType type : typesOf(role)) {
        if (material.GetTextureCount(type) > 0)
            return type;
    }
    return aiTextureType_NONE;
}

std::optional<Picture> pictureOf(const aiTexture& texture)
{
    if (texture.mHeight == 0)
        return decodePicture({reinterpret_cast<const unsigned char*>(texture.pcData), texture.mWidth});
    if (texture.mWidth == 0 || texture.mWidth > maxPictureSide || texture.mHeight > maxPictureSide)
        return std::nullopt;
    Picture picture{static_cast<int>(texture.mWidth), static_cast<int>(texture.mHeight), 4, {}};
    picture.bytes.reserve(std::size_t{texture.mWidth} * texture.mHeight * 4);
    // The first row of the library is the top row.
    for (std::size_t row = texture.mHeight; row-- > 0;) {
        for (const aiTexel& texel : std::span(texture.pcData + row * texture.mWidth, texture.mWidth))
            picture.bytes.insert(picture.bytes.end(), {texel.r, texel.g, texel.b, texel.a});
    }
    return picture;
}

/// Removes the opacity of each pixel.
void removeOpacity(Picture& picture)
{
    if (picture.components != 2 && picture.components != 4)
        return;
    const auto components = static_cast<std::size_t>(picture.components);
    std::size_t end = 0;
    for (std::size_t place = 0; place < picture.bytes.size(); ++place) {
        if (place % components != components - 1)
            picture.bytes[end++] = picture.bytes[place];
    }
    picture.bytes.resize(end);
    --picture.components;
}

void takeSurface(const aiMaterial& material, NxMaterial& target)
{
    float value = 0;
    // The library also states metalness and roughness, without a meaning, beside the glossiness of an older extension.
    if (material.Get(AI_MATKEY_GLOSSINESS_FACTOR, value) != aiReturn_SUCCESS) {
        if (material.Get(AI_MATKEY_METALLIC_FACTOR, value) == aiReturn_SUCCESS)
            target.metalness.setValue(std::clamp(value, 0.0F, 1.0F));
        if (material.Get(AI_MATKEY_ROUGHNESS_FACTOR, value) == aiReturn_SUCCESS)
            target.roughness.setValue(std::clamp(value, 0.0F, 1.0F));
    }
    aiString mode;
    if (material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) != aiReturn_SUCCESS)
        return;
    int isDoubleSided = 1;
    if (material.Get(AI_MATKEY_TWOSIDED, isDoubleSided) == aiReturn_SUCCESS)
        target.doubleSided.setValue(isDoubleSided);
    if (viewOf(mode) == "MASK" && material.Get(AI_MATKEY_GLTF_ALPHACUTOFF, value) == aiReturn_SUCCESS)
        target.alphaCutoff.setValue(std::clamp(value, 0.0F, 1.0F));
}

aiColor3D toAiColor(const NxSFColor& field)
{
    const VbColor& color = field.getValue();
    return {color[0], color[1], color[2]};
}

void setSurface(aiMaterial& target, const NxMaterial& look, bool hasSurfaceMap)
{
    // Without metalness and roughness, the library makes them from specular colour and shininess where it needs them.
    // With a specular colour, it declares that they have no meaning.
    if (hasSurfaceMap || !look.metalness.isDefault() || !look.roughness.isDefault()) {
        const float metalness = look.metalness.getValue();
        const float roughness = look.roughness.getValue();
        target.AddProperty(&metalness, 1, AI_MATKEY_METALLIC_FACTOR);
        target.AddProperty(&roughness, 1, AI_MATKEY_ROUGHNESS_FACTOR);
    } else {
        const aiColor3D specular = toAiColor(look.specularColor);
        target.AddProperty(&specular, 1, AI_MATKEY_COLOR_SPECULAR);
    }
    const bool isDoubleSided = look.doubleSided.getValue() != 0;
    target.AddProperty(&isDoubleSided, 1, AI_MATKEY_TWOSIDED);
    if (const float cutoff = look.alphaCutoff.getValue(); cutoff > 0) {
        const aiString mode = toAiText(std::string_view("MASK"));
        target.AddProperty(&mode, AI_MATKEY_GLTF_ALPHAMODE);
        target.AddProperty(&cutoff, 1, AI_MATKEY_GLTF_ALPHACUTOFF);
    }
}

} // namespace

NxRef<NxMaterial> toMaterial(const aiMaterial& material)
{
    NxRef<NxMaterial> result = new NxMaterial;
    aiString name;
    if (material.Get(AI_MATKEY_NAME, name) == aiReturn_SUCCESS)
        result->setName(toName(name));
    takeColor(material, result->ambientColor, AI_MATKEY_COLOR_AMBIENT);
    if (!takeColor(material, result->diffuseColor, AI_MATKEY_COLOR_DIFFUSE))
        takeColor(material, result->diffuseColor, AI_MATKEY_BASE_COLOR);
    takeColor(material, result->specularColor, AI_MATKEY_COLOR_SPECULAR);
    takeColor(material, result->emissiveColor, AI_MATKEY_COLOR_EMISSIVE);
    float value = 0;
    if (material.Get(AI_MATKEY_SHININESS, value) == aiReturn_SUCCESS)
        result->shininess.setValue(std::clamp(value / greatestExponent, 0.0F, 1.0F));
    if (material.Get(AI_MATKEY_OPACITY, value) == aiReturn_SUCCESS)
        result->transparency.setValue(std::clamp(1 - value, 0.0F, 1.0F));
    takeSurface(material, *result);
    return result;
}

std::string texturePath(const aiMaterial& material, NxTexture::Role role)
{
    aiString path;
    if (material.GetTexture(textureTypeOf(material, role), 0, &path) != aiReturn_SUCCESS)
        return {};
    std::string result(path.data, path.length);
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

int textureWrap(const aiMaterial& material, int axis, NxTexture::Role role)
{
    const char* key = axis == 0 ? _AI_MATKEY_MAPPINGMODE_U_BASE : _AI_MATKEY_MAPPINGMODE_V_BASE;
    int mode = aiTextureMapMode_Wrap;
    material.Get(key, static_cast<unsigned int>(textureTypeOf(material, role)), 0, mode);
    return mode == aiTextureMapMode_Clamp || mode == aiTextureMapMode_Decal ? NxTexture::CLAMP : NxTexture::REPEAT;
}

TextureMapping textureMapping(const aiMaterial& material, NxTexture::Role role)
{
    TextureMapping mapping;
    const aiTextureType type = textureTypeOf(material, role);
    int channel = 0;
    if (material.Get(AI_MATKEY_UVWSRC(type, 0), channel) == aiReturn_SUCCESS && channel > 0
        && channel < AI_MAX_NUMBER_OF_TEXTURECOORDS)
        mapping.channel = static_cast<unsigned int>(channel);
    aiUVTransform given;
    // Of the formats that have one, only glTF defines it well.
    if (!statesAlphaMode(material) || material.Get(AI_MATKEY_UVTRANSFORM(type, 0), given) != aiReturn_SUCCESS)
        return mapping;
    // The library turns about the middle of the image, with v upwards; here are the numbers of the file.
    const float cosine = std::cos(-given.mRotation);
    const float sine = std::sin(-given.mRotation);
    const aiVector2D& scale = given.mScaling;
    const float left = given.mTranslation.x - 0.5F * scale.x * (1 - cosine + sine);
    const float top = 1 - scale.y - given.mTranslation.y + 0.5F * scale.y * (sine + cosine - 1);
    // With v downwards u' = c x u + s y v + left and v' = -s x u + c y v + top, and v = 1 - (v upwards).
    mapping.across = {cosine * scale.x, -sine * scale.y, sine * scale.y + left};
    mapping.upwards = {sine * scale.x, cosine * scale.y, 1 - cosine * scale.y - top};
    return mapping;
}

NxRef<NxTexture> toTexture(const aiMaterial& material, const aiScene& model, NxTexture::Role role)
{
    const std::string path = texturePath(material, role);
    if (path.empty())
        return {};
    NxRef<NxTexture> result = new NxTexture;
    result->wrapS.setValue(textureWrap(material, 0, role));
    result->wrapT.setValue(textureWrap(material, 1, role));
    result->role.setValue(role);
    const aiTexture* embedded = model.GetEmbeddedTexture(path.c_str());
    if (embedded == nullptr) {
        result->filePath.setValue(VbString(std::string_view(path)));
        return result;
    }
    // The name of an embedded picture may be the path of its original file.
    const VbString name = toText(embedded->mFilename);
    if (name.view().find('.') != std::string_view::npos)
        result->filePath.setValue(name);
    else
        result->setName(name);
    if (std::optional<Picture> picture = pictureOf(*embedded)) {
        if (role == NxTexture::COLOR && isDeclaredOpaque(material))
            removeOpacity(*picture);
        const VbVec2s size(static_cast<short>(picture->width), static_cast<short>(picture->height));
        result->image.setValue(size, picture->components, std::move(picture->bytes));
    }
    return result;
}

void setMaterial(aiMaterial& target, const NxMaterial* material, bool hasSurfaceMap)
{
    const NxRef<const NxMaterial> look = material != nullptr ? material : new NxMaterial;
    const aiString name
        = toAiText(look->getName().isEmpty() ? std::string_view(AI_DEFAULT_MATERIAL_NAME) : look->getName().view());
    const aiColor3D ambient = toAiColor(look->ambientColor);
    const aiColor3D diffuse = toAiColor(look->diffuseColor);
    const aiColor3D emissive = toAiColor(look->emissiveColor);
    const float exponent = look->shininess.getValue() * greatestExponent;
    const float opacity = 1 - look->transparency.getValue();
    target.AddProperty(&name, AI_MATKEY_NAME);
    target.AddProperty(&ambient, 1, AI_MATKEY_COLOR_AMBIENT);
    target.AddProperty(&diffuse, 1, AI_MATKEY_COLOR_DIFFUSE);
    target.AddProperty(&emissive, 1, AI_MATKEY_COLOR_EMISSIVE);
    target.AddProperty(&exponent, 1, AI_MATKEY_SHININESS);
    target.AddProperty(&opacity, 1, AI_MATKEY_OPACITY);
    setSurface(target, *look, hasSurfaceMap);
}

void setTexture(aiMaterial& target, const NxTexture& texture, const std::string& path)
{
    const aiString text = toAiText(path);
    const auto mode = [](const NxSFEnum& wrap) {
        return wrap.getValue() == NxTexture::CLAMP ? int{aiTextureMapMode_Clamp} : int{aiTextureMapMode_Wrap};
    };
    const int across = mode(texture.wrapS);
    const int upwards = mode(texture.wrapT);
    const aiTextureType type = typesOf(texture.effectiveRole()).front();
    target.AddProperty(&text, AI_MATKEY_TEXTURE(type, 0));
    target.AddProperty(&across, 1, AI_MATKEY_MAPPINGMODE_U(type, 0));
    target.AddProperty(&upwards, 1, AI_MATKEY_MAPPINGMODE_V(type, 0));
}

} // namespace orvane
