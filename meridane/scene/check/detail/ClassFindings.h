#pragma once

#include "meridane/scene/check/NxCheckOptions.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/check/detail/ClassPlan.h"

#include <functional>

class NxTexture;

namespace meridane {

/// Takes a problem of the node and the field, which may be null, to be completed.
using Report = std::function<NxSceneProblem&(NxProblemKind kind, NxField* field)>;

/// Finds what only nodes of some classes can have: in transforms, cameras, lights, switches and textures.
void findByClass(NxNode& node, ClassPlan::Role role, const NxCheckOptions& options, const Report& report);

/// Whether the texture has an image of its own, so that its file isn't used.
[[nodiscard]] bool hasOwnImage(const NxTexture& texture);

} // namespace meridane
