#pragma once

#include "orvane/app/history/PastState.h"

#include <QString>

#include <optional>

namespace meridane {
class JournalStep;
}

/// What a step of the history changed, in short.
struct StepText {
    QString before;
    QString after;
};

namespace orvane {

/// The one place that a step changed; nothing if it changed several, or children.
[[nodiscard]] std::optional<StepPlace> onlyPlaceOf(const meridane::JournalStep& step);

/// The value before the step of that index and after it, each in one line. The index must be complete.
[[nodiscard]] StepText stepText(const PastState::History& history, int step);

} // namespace orvane
