#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxLight.h"

#include <memory>

#include <assimp/light.h>
#include <assimp/matrix4x4.h>

/// Lights between a scene and the import library.
namespace orvane {

/// The light where `transform`, the matrix of its node, puts it. Null for one that shines from nowhere: the brightness
/// of everything is told by materials here.
[[nodiscard]] NxRef<NxLight> toLight(const aiLight& light, const aiMatrix4x4& transform);
/// The way back: a light at the origin that shines along negative z, and the matrix of the node that holds it. Null for
/// a light of a class that no model knows.
[[nodiscard]] std::unique_ptr<aiLight> toAiLight(const NxLight& light, aiMatrix4x4& transform);

} // namespace orvane
