#pragma once

#include <cstddef>
#include <string_view>

namespace meridane {

/// A position in a text as people count it: line and column from 1, the column in characters.
struct TextPosition {
    int line = 1; ///< from 1
    int column = 1; ///< from 1, in characters
};

/// The position of a byte offset in a UTF-8 text. A byte order mark at the start of the text isn't counted. Counts
/// beyond the range of `int` are limited to it.
[[nodiscard]] TextPosition positionOf(std::string_view text, std::size_t offset) noexcept;

/// The mark that some editors put at the start of a UTF-8 text.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The text behind its byte order mark, if it has one.
[[nodiscard]] constexpr std::string_view withoutByteOrderMark(std::string_view text) noexcept
{
    return text.substr(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
}

} // namespace meridane
