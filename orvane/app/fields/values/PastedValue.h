#pragma once

#include "orvane/app/base/Result.h"

#include <string>

class NxField;

namespace orvane {

/// The text form of a value for a field, from a text as people and other programs write one. The field isn't changed.
///
/// Beside the text form it takes numbers with points or commas, between blanks, commas, semicolons or tabs, in brackets
/// or without; for a list a line for each row; formulas; colours such as `#ff8000`, `rgb(255, 128, 0)` and `orange`;
/// `yes`, `no`, `on` and `off`; names of enumerations in any case; and for a text field any text, which is taken whole.
/// The failure says what can't be taken, and where.
[[nodiscard]] Result<std::string> pastedValue(const NxField& field, const QString& text);

} // namespace orvane
