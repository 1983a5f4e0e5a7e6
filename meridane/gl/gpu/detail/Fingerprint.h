#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace meridane {

/// A hash of the bytes. Different bytes give different hashes but for a chance of one in 2^64; a list that is changed
/// and changed back gives the same hash again.
[[nodiscard]] std::uint64_t fingerprintOf(std::span<const std::byte> bytes) noexcept;

} // namespace meridane
