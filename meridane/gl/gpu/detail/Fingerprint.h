#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace meridane {

/// A hash of the bytes, the same in every call. Two different lists have the same hash with a probability of 2^-64.
[[nodiscard]] std::uint64_t fingerprintOf(std::span<const std::byte> bytes) noexcept;

} // namespace meridane
