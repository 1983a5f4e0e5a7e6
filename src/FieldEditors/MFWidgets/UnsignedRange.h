#pragma once

#include <QValidator>

namespace orvane {

/// Judges a text as a decimal number of 32 bits without sign: an empty one and one within the bounds are acceptable,
/// one outside of them is intermediate, all else is invalid.
[[nodiscard]] QValidator::State validateUnsigned(const QString& input, unsigned bottom, unsigned top);

} // namespace orvane
