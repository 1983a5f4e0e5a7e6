#pragma once

#include "orvane/import/mending/ImportWarnings.h"

struct aiScene;

namespace orvane {

/// Makes a model that was just read safe for the steps of the import library and for `SceneBuilder`, which both trust
/// its indices: whatever is unusable is left out, with a warning that names it. A mesh without faces becomes points.
///
/// Bones, and the meshes of morph targets, are removed, since a scene has none.
void mendModel(aiScene& model, ImportWarnings& warnings);

/// Whether the model has anything that a scene can show: positions, a light or a camera.
[[nodiscard]] bool hasContent(const aiScene& model);

} // namespace orvane
