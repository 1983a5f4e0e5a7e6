#pragma once

#include "meridane/base/types/NxType.h"

#include <QIcon>

namespace orvane {

/// The icon of a node class: its own, or that of its nearest base that has one. Drawn once a class.
[[nodiscard]] QIcon nodeIcon(NxType type);

} // namespace orvane
