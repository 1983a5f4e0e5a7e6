#pragma once

#include <array>
#include <cstdint>

namespace meridane {

/// The bytes of a number, the lowest first, as components of a colour from 0 to 1. A buffer with eight bits a component
/// keeps them exactly.
[[nodiscard]] inline std::array<float, 4> colorOfNumber(std::uint32_t number) noexcept
{
    std::array<float, 4> color{};
    for (std::size_t i = 0; i < 4; ++i)
        color[i] = static_cast<float>(number >> (8 * i) & 0xFFU) / 255;
    return color;
}

/// The number of such a colour in the memory of a buffer.
[[nodiscard]] inline std::uint32_t numberOfColor(const std::uint8_t* bytes) noexcept
{
    std::uint32_t number = 0;
    for (std::size_t byte = 4; byte-- > 0;)
        number = number << 8U | bytes[byte];
    return number;
}

} // namespace meridane
