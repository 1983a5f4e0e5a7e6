#pragma once

#include <string>
#include <string_view>

namespace meridane {

/// The byte offset of the first byte that is no part of valid UTF-8 (Unicode 15, table 3-7), or npos.
[[nodiscard]] std::size_t findInvalidUtf8(std::string_view text) noexcept;
/// A copy of the text in which each invalid byte is replaced by U+FFFD.
[[nodiscard]] std::string replaceInvalidUtf8(std::string_view text);
/// Appends a code point as UTF-8. A number that is no code point becomes U+FFFD.
void appendUtf8(std::string& text, char32_t codePoint);

/// The text in UTF-16. It must be valid UTF-8: see `replaceInvalidUtf8`.
[[nodiscard]] std::u16string utf8ToUtf16(std::string_view valid);
/// Characters outside Latin-1 become question marks.
[[nodiscard]] std::string utf8ToLatin1(std::string_view valid);
/// The text in UTF-8; every byte is the character of that number.
[[nodiscard]] std::string latin1ToUtf8(std::string_view latin1);
/// The text in UTF-8. Lone surrogates become U+FFFD.
[[nodiscard]] std::string utf16ToUtf8(std::u16string_view utf16);

} // namespace meridane
