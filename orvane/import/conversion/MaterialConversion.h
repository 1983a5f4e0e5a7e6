#pragma once

#include "orvane/import/conversion/TextureMapping.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <string>

#include <assimp/material.h>

struct aiScene;

/// Materials and textures between a scene and the import library.
namespace orvane {

/// The colours of the material; those that it doesn't define keep their defaults.
[[nodiscard]] NxRef<NxMaterial> toMaterial(const aiMaterial& material);
/// The path of the material's texture, as the model gives it; empty for none.
[[nodiscard]] std::string texturePath(const aiMaterial& material);
/// The wrap mode of that texture, an `NxTexture::Wrap`, along axis 0 (left and right) or 1 (below and above).
[[nodiscard]] int textureWrap(const aiMaterial& material, int axis);
/// How that texture is placed on the surface.
[[nodiscard]] TextureMapping textureMapping(const aiMaterial& material);
/// The texture of the material, or null. It has an image if the model contains one that can be decoded.
[[nodiscard]] NxRef<NxTexture> toTexture(const aiMaterial& material, const aiScene& model);

/// The reverse. Null gives the material of a surface without one.
void setMaterial(aiMaterial& target, const NxMaterial* material);
/// Adds a texture to a material. `path` is its name in the model.
void setTexture(aiMaterial& target, const NxTexture& texture, const std::string& path);

} // namespace orvane
