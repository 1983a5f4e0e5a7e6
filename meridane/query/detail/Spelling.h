#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace meridane {

/// A text in the characters that expressions are made of. Digits, signs and blanks of other scripts become those of
/// ASCII, invisible marks are left out.
struct Spelling {
    static constexpr char degreeSign = '\1';
    static constexpr char unknownSign = '\2';

    std::string text;
    /// For each character of `text` and for its end, the offset in the original text.
    std::vector<std::size_t> positions;
};

[[nodiscard]] Spelling spell(std::string_view original);
/// The character of a UTF-8 text that begins at that offset; an invalid byte is one of its own.
[[nodiscard]] std::string_view characterAt(std::string_view text, std::size_t offset);

} // namespace meridane
