#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxCamera.h"

#include <memory>

#include <assimp/camera.h>
#include <assimp/matrix4x4.h>

/// Cameras between a scene and the import library.
namespace orvane {

/// The camera in the group of its node.
[[nodiscard]] NxRef<NxCamera> toCamera(const aiCamera& camera);
/// Transforms a camera by a matrix without scale. Returns false for any other matrix and changes nothing.
[[nodiscard]] bool moveCamera(NxCamera& camera, const aiMatrix4x4& transform);
/// The reverse: a camera at the origin that looks along negative z, and the transform of its node. Null for a class of
/// cameras that models don't have.
[[nodiscard]] std::unique_ptr<aiCamera> toAiCamera(const NxCamera& camera, aiMatrix4x4& transform);

} // namespace orvane
