#pragma once

#include <QValidator>

namespace orvane {

/// The state of a text as a decimal number of 32 bits without sign: an empty text and a number within the bounds are
/// acceptable, a number outside of them is intermediate, everything else is invalid.
[[nodiscard]] QValidator::State validateUnsigned(const QString& input, unsigned bottom, unsigned top);

} // namespace orvane
