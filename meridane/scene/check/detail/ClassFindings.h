#pragma once

#include "meridane/scene/check/NxCheckOptions.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/check/detail/ClassPlan.h"

#include <functional>

class NxTexture;

namespace meridane {

/// Takes a problem of the node and the field, which may be null, to be completed.
using Report = std::function<NxSceneProblem&(NxProblemKind kind, NxField* field)>;

/// Whether there is something that only nodes of that role can have.
[[nodiscard]] constexpr bool hasFindings(ClassPlan::Role role) noexcept
{
    using Role = ClassPlan::Role;
    return role != Role::Mesh && role != Role::Material && role != Role::Complexity && role != Role::Bystander
        && role != Role::Unknown;
}

/// Finds what only nodes of some classes can have: in transforms, cameras, lights, switches and textures.
void findByClass(NxNode& node, ClassPlan::Role role, const NxCheckOptions& options, const Report& report);

/// The size of an image, such as "640 by 480".
[[nodiscard]] std::string imageSizeText(int width, int height);

/// Whether the texture has an image of its own, so that its file isn't used.
[[nodiscard]] bool hasOwnImage(const NxTexture& texture);

} // namespace meridane
