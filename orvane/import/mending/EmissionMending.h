#pragma once

#include "orvane/import/mending/ImportWarnings.h"

#include <assimp/scene.h>

namespace orvane {

/// Makes surfaces that shine by themselves, or that aren't lit, look as their format defines where a scene can have
/// that. Reports the textures of such surfaces that can't be drawn, and for glTF those of occlusion and the strengths
/// of normal maps. Expects materials that are mended otherwise.
void mendEmission(aiScene& model, ImportWarnings& warnings);

} // namespace orvane
