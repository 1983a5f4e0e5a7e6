#pragma once

#include <QString>

namespace orvane {

/// The shortest text that is read as the float nearest to the number, in the C locale.
[[nodiscard]] QString floatText(double number);
/// The number rounded to at most that many decimals, in the C locale. For numbers that are computed from others, whose
/// last digits mean nothing. Numbers too large or too small for that have an exponent.
[[nodiscard]] QString roundedText(double number, int decimals);

} // namespace orvane
