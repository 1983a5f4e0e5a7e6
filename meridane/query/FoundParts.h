#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace meridane {

/// What a text is to a query that is searched in it.
enum class SearchedText : std::uint8_t {
    Name, ///< of a node or a field
    Class, ///< the name of a class
    Value, ///< a value, a part of one, or a plain text
};

/// Bytes of a text in UTF-8, whole characters.
struct FoundPart {
    std::size_t start = 0; ///< the offset of the first byte
    std::size_t length = 0; ///< in bytes

    /// Whether start and length are equal.
    bool operator==(const FoundPart&) const = default;
};

/// In the order of the text, without overlap.
using FoundParts = std::vector<FoundPart>;

} // namespace meridane
