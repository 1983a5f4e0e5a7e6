#pragma once

#include "meridane/scene/check/NxProblemKind.h"

#include <QIcon>

namespace orvane {

/// The icon of a severity: a cross in a ring, an exclamation mark in a triangle, an i in a ring.
[[nodiscard]] QIcon severityIcon(NxSeverity severity);

} // namespace orvane
