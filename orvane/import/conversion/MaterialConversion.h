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

/// The colours of the material, and its metalness, roughness, sides and cut-off; what it doesn't define keeps its
/// default.
[[nodiscard]] NxRef<NxMaterial> toMaterial(const aiMaterial& material);
/// The path of the material's texture with that role, as the model gives it; empty for none.
[[nodiscard]] std::string texturePath(const aiMaterial& material, NxTexture::Role role = NxTexture::COLOR);
/// The wrap mode of that texture, an `NxTexture::Wrap`, along axis 0 (left and right) or 1 (below and above).
[[nodiscard]] int textureWrap(const aiMaterial& material, int axis, NxTexture::Role role = NxTexture::COLOR);
/// How that texture is placed on the surface.
[[nodiscard]] TextureMapping textureMapping(const aiMaterial& material, NxTexture::Role role = NxTexture::COLOR);
/// The texture of the material with that role, or null. It has an image if the model contains one that can be decoded.
[[nodiscard]] NxRef<NxTexture> toTexture(
    const aiMaterial& material, const aiScene& model, NxTexture::Role role = NxTexture::COLOR);

/// The reverse. Null gives the material of a surface without one. `hasSurfaceMap` says that a texture of metalness and
/// roughness will be added.
void setMaterial(aiMaterial& target, const NxMaterial* material, bool hasSurfaceMap = false);
/// Adds a texture to a material, in the texture's role. `path` is its name in the model.
void setTexture(aiMaterial& target, const NxTexture& texture, const std::string& path);

} // namespace orvane
