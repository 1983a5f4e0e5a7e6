#include "meridane/gl/Fingerprint.h"

#include <array>
#include <bit>
#include <cstring>

namespace meridane {
namespace {

constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
constexpr std::size_t word = sizeof(std::uint64_t);
constexpr std::size_t lanes = 4; // so that the multiplications needn't wait for each other

std::uint64_t mixed(std::uint64_t state, std::uint64_t value) noexcept
{
    return (std::rotl(state, 29) ^ value) * factor;
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
    std::array<std::uint64_t, lanes> states{1, 2, 3, bytes.size()};
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
    std::uint64_t result = 0;
    for (const std::uint64_t state : states)
        result = mixed(result, state ^ (state >> 32U));
    return result ^ (result >> 29U);
}

} // namespace meridane
