#pragma once

#include <span>

class NxNode;

namespace meridane {

/// The children of a node that are drawn: of a switch, those that it selects. Valid until the node's children change.
[[nodiscard]] std::span<NxNode* const> shownChildrenOf(const NxNode& node);

} // namespace meridane
