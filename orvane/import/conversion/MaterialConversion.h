#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <string>

#include <assimp/material.h>

struct aiScene;

/// Materials and textures between a scene and the import library.
namespace orvane {

/// The material's colours; what it doesn't tell keeps the default.
[[nodiscard]] NxRef<NxMaterial> toMaterial(const aiMaterial& material);
/// The path of the picture on surfaces of that material, as the model has it; empty for none.
[[nodiscard]] std::string texturePath(const aiMaterial& material);
/// What lies outside that picture, an `NxTexture::Wrap`: along axis 0 (left and right) or 1 (below and above).
[[nodiscard]] int textureWrap(const aiMaterial& material, int axis);
/// The texture of a material that has one: with its image, if the model holds it and it can be decoded.
[[nodiscard]] NxRef<NxTexture> toTexture(const aiMaterial& material, const aiScene& model);

/// The way back. Null stands for the look of a surface without a material.
void setMaterial(aiMaterial& target, const NxMaterial* material);
/// Lays a picture on surfaces of the material. `path` is what the model calls it.
void setTexture(aiMaterial& target, const NxTexture& texture, const std::string& path);

} // namespace orvane
