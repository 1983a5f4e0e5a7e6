#pragma once

#include "meridane/gl/gpu/detail/SurfaceShaders.h"
#include "meridane/gl/painting/NxDrawingStyle.h"
#include "meridane/gl/places/detail/Looks.h"

namespace meridane {

struct MeshShape;

/// Whether the look draws the boxes of meshes instead of the meshes.
[[nodiscard]] bool isBox(const Look& look);
/// From 0 to 1.
[[nodiscard]] float textureQuality(const Look& look);
/// The look's material, or that of a new material node.
[[nodiscard]] const MaterialValues& materialOf(const Look& look);
/// Whether triangles aren't seen from behind.
[[nodiscard]] bool isSingleSided(const Look& look);

/// The shaders that draw a mesh with a look, whose textures are on the GPU.
[[nodiscard]] SurfaceVariant variantOf(const MeshShape& shape, const Look& look);
/// The same for a picture that shows something else than the scene in its light.
[[nodiscard]] SurfaceVariant variantOf(const MeshShape& shape, const Look& look, NxDrawingStyle::Shading shading);
/// What the programs of a picture show.
[[nodiscard]] SurfaceColors colorsOf(NxDrawingStyle::Shading shading) noexcept;
/// Whether what is behind shines through.
[[nodiscard]] bool isTranslucent(const MeshShape& shape, const Look& look, SurfaceVariant variant);

} // namespace meridane
