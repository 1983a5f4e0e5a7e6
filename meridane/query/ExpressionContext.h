#pragma once

#include "meridane/query/QueryError.h"

#include <cstddef>
#include <string>
#include <vector>

namespace meridane {

/// What an expression is for.
struct ExpressionContext {
    static constexpr std::size_t mostBytes = 4096; ///< the length of the longest text
    static constexpr std::size_t mostBrackets = 64; ///< how many may be within each other

    /// Names for values that are passed when the expression is evaluated: letters, digits and `_`, the first no digit.
    /// They hide constants and functions of the same name.
    std::vector<std::string> variables{"x"};
    bool isAngle = false; ///< the result is in radians, so that `deg` may be used
    bool mayBeInfinite = false; ///< `inf` and `nan` may be used, and variables may have these values
    bool isWhole = false; ///< the result must be a whole number
};

/// The first row whose value is an error.
struct ExpressionRowFailure {
    std::size_t row = 0; ///< counted from 0
    QueryError error; ///< why this row has no value
};

} // namespace meridane
