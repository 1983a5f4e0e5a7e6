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
/// Moves a camera by a matrix that doesn't scale; another one leaves it alone and gives false.
[[nodiscard]] bool moveCamera(NxCamera& camera, const aiMatrix4x4& transform);
/// The way back: a camera at the origin that looks along negative z, and the matrix of the node that holds it. Null for
/// a camera of a class that no model knows.
[[nodiscard]] std::unique_ptr<aiCamera> toAiCamera(const NxCamera& camera, aiMatrix4x4& transform);

} // namespace orvane
