#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace meridane {

/// A number that differs for different bytes, but for a chance of one in 2^64. Two changes of a list in a row give the
/// list's own number again when they take each other back.
[[nodiscard]] std::uint64_t fingerprintOf(std::span<const std::byte> bytes) noexcept;

} // namespace meridane
