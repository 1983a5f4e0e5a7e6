#pragma once

#include "orvane/import/mending/ImportWarnings.h"

struct aiScene;

namespace orvane {

/// Moves the positions of skinned meshes to where the bones of the model at rest hold them, which may be elsewhere than
/// where they were bound.
///
/// Precondition: the indices of bones, nodes and meshes are in range, or else they are passed over.
void poseSkins(aiScene& model);

/// Moves the positions of meshes with morph targets as the weights of the targets say, in a format that states these
/// weights. To be called before `poseSkins`.
void applyMorphs(aiScene& model);

/// Adds one warning that says what of the motion of a model a scene has not.
void reportMotion(const aiScene& model, ImportWarnings& warnings);

} // namespace orvane
