#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace meridane {

/// A place in a text as people count it: line and column from 1, the column in characters.
struct TextPlace {
    int line = 1;
    int column = 1;
};

/// The place of a byte offset. A byte order mark at the start of the text isn't counted.
[[nodiscard]] TextPlace findPlace(std::string_view text, std::size_t offset);

/// Tells what stands at a byte offset: a word, a character, a quoted text, each in quotes, shortened and with
/// everything that can't be shown escaped; or "the end of the line" or "the end of the file".
[[nodiscard]] std::string describeToken(std::string_view text, std::size_t offset);

/// The mark that some editors put in front of UTF-8.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

} // namespace meridane
