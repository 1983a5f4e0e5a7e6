#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

namespace bench {

/// A scene of 1,000,000 named nodes: groups of a thousand materials; each name has a number.
[[nodiscard]] NxRef<NxGroup> makeNamedScene();

} // namespace bench
