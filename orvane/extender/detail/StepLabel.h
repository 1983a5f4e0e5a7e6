#pragma once

#include <QString>

namespace meridane {
class JournalStep;
}

namespace orvane {

/// Says in some words what a step has changed, such as "Set arm.rotation". The scene must be in the state directly
/// after the step.
[[nodiscard]] QString labelOf(const meridane::JournalStep& step);

} // namespace orvane
