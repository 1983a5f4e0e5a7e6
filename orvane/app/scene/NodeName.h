#pragma once

#include <QString>

class NxFieldContainer;

namespace orvane {

/// The name of a node in a short line, or that of its class.
[[nodiscard]] QString nodeName(const NxFieldContainer& node);

} // namespace orvane
