#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace meridane {

/// A number without sign at the beginning of a part of an expression, in the characters of a `Spelling`.
struct ScannedNumber {
    double value = 0;
    std::size_t end = 0; ///< the offset after it
    bool hasComma = false; ///< a comma is its decimal sign
    std::string refusal; ///< why it can't be read, if it can't
};

/// Whether a number begins at that offset: with a digit, or with a decimal sign before a digit.
[[nodiscard]] bool beginsNumber(std::string_view text, std::size_t start);
/// Reads the number that begins at that offset.
[[nodiscard]] ScannedNumber scanNumber(std::string_view text, std::size_t start);

} // namespace meridane
