#pragma once

#include "meridane/scene/components/FieldComponents.h"

#include <string>

namespace meridane {

/// The shortest text of a number that `Expression` and fields of that type read back as the same number, whatever the
/// locale: the decimal sign is a point. Whole numbers of integer types have digits alone. A number that the type
/// doesn't have is written as a double.
[[nodiscard]] std::string numberText(double value, FieldComponents::Number type = FieldComponents::Number::Double);

} // namespace meridane
