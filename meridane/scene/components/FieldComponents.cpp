#include "meridane/scene/components/FieldComponents.h"

#include "meridane/scene/text/ValueText.h"

#include <cmath>

namespace meridane {
namespace {

std::string numberText(double value)
{
    constexpr double mostDigits = 1e15;
    if (std::abs(value) < mostDigits && value == std::trunc(value))
        return std::to_string(static_cast<long long>(value));
    std::string text;
    writeValue(text, value);
    return text;
}

} // namespace

std::optional<std::string> FieldComponents::refusal(double value) const
{
    const bool whole = isWhole();
    if (!std::isfinite(value))
        return whole ? std::optional(numberText(value) + " isn't a whole number.") : std::nullopt;
    if (value < lowest() || value > highest())
        return numberText(value) + " is out of range: the field takes "
            + (whole ? "whole numbers from " : "numbers from ") + numberText(lowest()) + " to " + numberText(highest())
            + ".";
    if (whole && value != std::trunc(value))
        return numberText(value) + " isn't a whole number.";
    return std::nullopt;
}

bool FieldComponents::set(NxField& field, int row, int component, double value) const
{
    return setColumn(field, std::span(&row, 1), component, std::span(&value, 1));
}

} // namespace meridane
