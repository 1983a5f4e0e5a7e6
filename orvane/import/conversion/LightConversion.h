#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxLight.h"

#include <memory>

#include <assimp/light.h>
#include <assimp/matrix4x4.h>

/// Lights between a scene and the import library.
namespace orvane {

/// The light, transformed by the world transform of its node. Null for ambient light, which here is a property of
/// materials.
[[nodiscard]] NxRef<NxLight> toLight(const aiLight& light, const aiMatrix4x4& transform);
/// The reverse: a light at the origin that shines along negative z, and the transform of its node. Null for a class of
/// lights that models don't have.
[[nodiscard]] std::unique_ptr<aiLight> toAiLight(const NxLight& light, aiMatrix4x4& transform);

} // namespace orvane
