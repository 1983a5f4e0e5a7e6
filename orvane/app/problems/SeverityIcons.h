#pragma once

#include "meridane/scene/check/NxProblemKind.h"

#include <QIcon>

class QPalette;

namespace orvane {

/// The icon of a severity for that palette: a cross in a disc, an exclamation mark in a triangle, an i in a ring.
[[nodiscard]] QIcon severityIcon(NxSeverity severity, const QPalette& palette);

} // namespace orvane
