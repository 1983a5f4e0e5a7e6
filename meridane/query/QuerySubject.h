#pragma once

#include <cstddef>
#include <cstdint>

namespace meridane {

/// What a query searches.
enum class QuerySubject : std::uint8_t {
    Scene, ///< nodes and fields
    Rows, ///< plain texts, which have no fields: there are only words, quotes, `/…/`, `and`, `or`, `not`, brackets
};

/// The limits of a query: bytes of its text, and brackets within each other.
inline constexpr std::size_t mostQueryBytes = 4096;
inline constexpr std::size_t mostQueryBrackets = 64; ///< see `mostQueryBytes`

} // namespace meridane
