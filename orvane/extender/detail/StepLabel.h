#pragma once

#include "meridane/base/types/NxType.h"

#include <QString>

namespace meridane {
class JournalStep;
}

class NxGroup;

namespace orvane {

/// What a step has changed, in some words.
struct StepLabel {
    QString text; ///< such as "Set arm.rotation"
    NxType nodeType; ///< the class of the node that was changed, added, moved or removed; the bad type for several
};

/// Describes a step of a scene, of the group that holds the top nodes. The scene must be in the state directly after
/// the step.
[[nodiscard]] StepLabel labelOf(const meridane::JournalStep& step, const NxGroup& scene);

} // namespace orvane
