#include "meridane/query/NumberText.h"

#include "meridane/scene/text/ValueText.h"

#include <cmath>
#include <limits>

namespace meridane {

std::string numberText(double value, FieldComponents::Number type)
{
    using Number = FieldComponents::Number;
    constexpr double mostDigits = 1e15; // beyond them not all whole numbers are doubles
    if (type != Number::Float && type != Number::Double && std::abs(value) < mostDigits && value == std::trunc(value))
        return std::to_string(static_cast<long long>(value));
    std::string text;
    const bool isFloat = type == Number::Float
        && !(std::isfinite(value) && std::abs(value) > static_cast<double>(std::numeric_limits<float>::max()));
    if (isFloat)
        writeValue(text, static_cast<float>(value));
    else
        writeValue(text, value);
    return text;
}

} // namespace meridane
