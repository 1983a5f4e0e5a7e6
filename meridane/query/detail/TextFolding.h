#pragma once

#include "meridane/query/FoundParts.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace meridane {

/// The text as it is compared: in small letters and without accents, so that `É` is `e`. Letters that are written in
/// two ways (composed, full-width, ligatures) become the same. Accents are the diacritical marks of Latin, Greek and
/// Cyrillic; vowel signs of other scripts stay. Invalid bytes become U+FFFD. A text of ASCII keeps its length.
[[nodiscard]] std::string foldText(std::string_view text);
/// The same into a text whose memory is used again.
void foldText(std::string_view text, std::string& folded);
/// The same at the end of a text.
void appendFolded(std::string_view text, std::string& to);

/// A folded text, and where its bytes come from.
struct FoldedText {
    std::string text;
    std::vector<FoundPart> sources; ///< for each byte, the letter with its accents in the original text

    /// The part of the original text from which some bytes come, one at least.
    [[nodiscard]] FoundPart source(std::size_t start, std::size_t length) const
    {
        const FoundPart& last = sources[start + length - 1];
        return {sources[start].start, last.start + last.length - sources[start].start};
    }
};
[[nodiscard]] FoldedText foldWithSources(std::string_view text);

/// Whether a word is that keyword, which is in small ASCII letters, in either case of ASCII letters.
[[nodiscard]] bool isKeyword(std::string_view word, std::string_view keyword) noexcept;

} // namespace meridane
