#include "meridane/gl/gpu/detail/Fingerprint.h"

#include <array>
#include <bit>
#include <cstring>

namespace meridane {
namespace {

// Large odd numbers without a pattern in their bits.
constexpr std::uint64_t valueFactor = 0x9E3779B97F4A7C15U;
constexpr std::uint64_t stateFactor = 0xC2B2AE3D27D4EB4FU;
constexpr std::size_t word = sizeof(std::uint64_t);
constexpr std::size_t lanes = 4; // so that the multiplications don't depend on each other

std::uint64_t mixed(std::uint64_t state, std::uint64_t value) noexcept
{
    return std::rotl(state + value * valueFactor, 31) * stateFactor;
}

/// Mixes the bits, so that each changes about half of all others.
std::uint64_t spread(std::uint64_t value) noexcept
{
    value = (value ^ (value >> 33U)) * stateFactor;
    value = (value ^ (value >> 29U)) * valueFactor;
    return value ^ (value >> 32U);
}

std::uint64_t load(const std::byte* bytes) noexcept
{
    std::uint64_t value = 0;
    std::memcpy(&value, bytes, word);
    return value;
}

} // namespace

std::uint64_t fingerprintOf(std::span<const std::byte> bytes) noexcept
{
    std::array<std::uint64_t, lanes> states{1, 2, 3, 4};
    const std::byte* at = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= lanes * word; left -= lanes * word, at += lanes * word) {
        for (std::size_t lane = 0; lane < lanes; ++lane)
            states[lane] = mixed(states[lane], load(at + lane * word));
    }
    for (; left >= word; left -= word, at += word)
        states[0] = mixed(states[0], load(at));
    if (left > 0) {
        std::uint64_t rest = 0;
        std::memcpy(&rest, at, left);
        states[1] = mixed(states[1], rest);
    }
    std::uint64_t result = bytes.size();
    for (const std::uint64_t state : states)
        result = mixed(spread(result), spread(state));
    return spread(result);
}

} // namespace meridane
