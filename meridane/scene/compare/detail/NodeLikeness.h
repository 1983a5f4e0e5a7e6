#pragma once

class NxNode;

namespace meridane {

/// Whether at least half of what two nodes of one class hold is the same: of the fields that one of them has without
/// its default, and of the first children by name and class. True for two nodes that hold nothing.
[[nodiscard]] bool areHalfAlike(NxNode& left, NxNode& right);

} // namespace meridane
