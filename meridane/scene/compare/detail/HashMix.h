#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace meridane {

/// The hash of a sequence, from that of all but its last part and that of the last part.
[[nodiscard]] constexpr std::uint64_t mixHash(std::uint64_t hash, std::uint64_t part) noexcept
{
    constexpr std::uint64_t factor = 0x9DDFEA08EB382D69U;
    constexpr unsigned int shift = 47;
    std::uint64_t mixed = (hash ^ part) * factor;
    mixed ^= mixed >> shift;
    return (mixed ^ hash) * factor;
}

[[nodiscard]] inline std::uint64_t hashOf(std::string_view text) noexcept
{
    return std::hash<std::string_view>()(text);
}

} // namespace meridane
