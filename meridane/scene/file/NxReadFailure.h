#pragma once

#include <string>

/// Why a text was refused, and where. Line and column count from 1, the column in characters; 0 means unknown.
struct NxReadFailure {
    std::string file; ///< the name that the reader was given
    int line = 0; ///< from 1
    int column = 0; ///< from 1, in characters
    /// What was wrong and what was expected, without the position.
    std::string message;

    /// "file:line:column: message", without the parts that aren't known.
    [[nodiscard]] std::string text() const;
};
