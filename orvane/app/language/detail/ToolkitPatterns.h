#pragma once

#include <span>

namespace orvane {

/// A message of the toolkit, with %1, %2, … in this order for what differs. One of those may be such a message itself.
struct ToolkitPattern {
    const char* text = nullptr;
    int phrase = 0; ///< the number of the part that is translated too; 0 for none
};

/// All messages that are known. Of two that fit, the first is meant.
[[nodiscard]] std::span<const ToolkitPattern> toolkitPatterns() noexcept;

} // namespace orvane
