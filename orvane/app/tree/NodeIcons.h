#pragma once

#include "meridane/base/types/NxType.h"

#include <QIcon>

namespace orvane {

/// The icon of a node class: its own, or that of its nearest base that has one. Drawn once a class.
///
/// A plug-in gives its classes icons as Qt resources, `:/orvane/node-icons/Gear.svg` for the class "Gear". One that
/// can't be drawn counts as none.
[[nodiscard]] QIcon nodeIcon(NxType type);

} // namespace orvane
