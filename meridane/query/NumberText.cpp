#include "meridane/query/NumberText.h"

#include "meridane/scene/text/ValueText.h"

#include <cmath>
#include <limits>

namespace meridane {

std::string numberText(double value, FieldComponents::Number type)
{
    std::string text;
    const bool isFloat = type == FieldComponents::Number::Float
        && !(std::isfinite(value) && std::abs(value) > static_cast<double>(std::numeric_limits<float>::max()));
    if (isFloat)
        writeValue(text, static_cast<float>(value));
    else
        writeValue(text, value);
    return text;
}

} // namespace meridane
