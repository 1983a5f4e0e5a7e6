#pragma once

#include <cstddef>
#include <string_view>

namespace bench {

/// The result of a tokeniser for scene files.
struct Tokens {
    std::size_t words = 0;
    std::size_t numbers = 0;
    std::size_t texts = 0;
    std::size_t marks = 0;
    std::size_t bytes = 0; // of all tokens
    bool valid = true; // every byte is part of a character of UTF-8 and of a token, a blank or a comment
};

/// Splits a scene file into its tokens: checks that it is UTF-8, skips blanks and comments, finds the extent of
/// each word, number and quoted text. Numbers aren't converted, nothing is looked up or built.
Tokens tokenise(std::string_view text);

} // namespace bench
