#pragma once

class NxNode;

namespace orvane {

/// Whether a field of the node is ignored.
[[nodiscard]] bool hasIgnoredField(NxNode& node);

} // namespace orvane
