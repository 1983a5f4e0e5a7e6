#include "orvane/app/fields/popups/ShownNumber.h"

#include "orvane/app/input/NumberLimits.h"

#include <cmath>

namespace orvane {

QString floatText(double number)
{
    return plainNumber(number, meridane::FieldComponents::Number::Float);
}

QString roundedText(double number, int decimals)
{
    const double scale = std::pow(10, decimals);
    const double rounded = std::round(number * scale) / scale;
    const bool isExact = std::isfinite(rounded) && std::abs(number) < 1e9;
    if (!isExact || (rounded == 0 && number != 0 && std::abs(number) > 1e-12))
        return floatText(number);
    return plainNumber(rounded == 0 ? 0 : rounded); // no -0
}

} // namespace orvane
