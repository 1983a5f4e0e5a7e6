#pragma once

#include <cstddef>
#include <optional>

namespace orvane {

/// The limit of the history's memory in bytes, from the preference `ORVANE_HISTORY` in MiB. Nothing if there is none,
/// or a bad one, which is posted as a warning.
[[nodiscard]] std::optional<std::size_t> preferredHistoryLimit();

} // namespace orvane
