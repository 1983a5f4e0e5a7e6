#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace meridane {

/// What a NaN of a type consists of: a sign, an exponent that is all ones, and a fraction that isn't 0.
template <std::floating_point Number>
struct NanBits {
    static_assert(std::numeric_limits<Number>::is_iec559 && sizeof(Number) <= sizeof(std::uint64_t));

    using Bits = std::conditional_t<sizeof(Number) == sizeof(std::uint32_t), std::uint32_t, std::uint64_t>;

    static constexpr int fractionBits = std::numeric_limits<Number>::digits - 1;
    static constexpr Bits sign = Bits{1} << (8 * sizeof(Bits) - 1);
    static constexpr Bits greatestFraction = (Bits{1} << fractionBits) - 1;
    /// The fraction of the NaN that an operation without a result gives: `nan` without more.
    static constexpr Bits plainFraction = Bits{1} << (fractionBits - 1);
    static constexpr Bits exponent = static_cast<Bits>(~(sign | greatestFraction));
};

} // namespace meridane
