#include "meridane/query/detail/Functions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>

namespace meridane {
namespace {

using One = ExpressionFunction::One;
using Two = ExpressionFunction::Two;
using Three = ExpressionFunction::Three;
using Many = ExpressionFunction::Many;

/// A NaN among the values is the result.
template <typename Better>
double bestOf(const double* values, int count, Better isBetter)
{
    double best = values[0];
    for (int i = 1; i < count && !std::isnan(best); ++i) {
        if (std::isnan(values[i]) || isBetter(values[i], best))
            best = values[i];
    }
    return best;
}
double leastOf(const double* values, int count)
{
    return bestOf(values, count, std::less());
}
double greatestOf(const double* values, int count)
{
    return bestOf(values, count, std::greater());
}
double signOf(double value)
{
    return value > 0 ? 1 : value < 0 ? -1 : value;
}
/// The remainder with the sign of the divisor, so that mod(-1; 4) is 3.
double modulo(double value, double divisor)
{
    const double rest = std::fmod(value, divisor);
    return rest != 0 && (rest < 0) != (divisor < 0) ? rest + divisor : rest;
}
double clampTo(double value, double low, double high)
{
    return std::isnan(value) ? value : std::max(low, std::min(value, high));
}

const std::array functions{
    ExpressionFunction{"sin", One(std::sin)},
    ExpressionFunction{"cos", One(std::cos)},
    ExpressionFunction{"tan", One(std::tan)},
    ExpressionFunction{"asin", One(std::asin)},
    ExpressionFunction{"acos", One(std::acos)},
    ExpressionFunction{"atan", One(std::atan)},
    ExpressionFunction{"atan2", Two(std::atan2)},
    ExpressionFunction{"sinh", One(std::sinh)},
    ExpressionFunction{"cosh", One(std::cosh)},
    ExpressionFunction{"tanh", One(std::tanh)},
    ExpressionFunction{"exp", One(std::exp)},
    ExpressionFunction{"ln", One(std::log)},
    ExpressionFunction{"log2", One(std::log2)},
    ExpressionFunction{"log10", One(std::log10)},
    ExpressionFunction{"sqrt", One(std::sqrt)},
    ExpressionFunction{"cbrt", One(std::cbrt)},
    ExpressionFunction{"pow", Two(std::pow)},
    ExpressionFunction{"hypot", Two(std::hypot)},
    ExpressionFunction{"abs", One(std::fabs)},
    ExpressionFunction{"sign", One(signOf)},
    ExpressionFunction{"floor", One(std::floor)},
    ExpressionFunction{"ceil", One(std::ceil)},
    ExpressionFunction{"round", One(std::round)},
    ExpressionFunction{"trunc", One(std::trunc)},
    ExpressionFunction{"mod", Two(modulo)},
    ExpressionFunction{"min", Many(leastOf)},
    ExpressionFunction{"max", Many(greatestOf)},
    ExpressionFunction{"clamp", Three(clampTo)},
    ExpressionFunction{"mix", Three([](double from, double to, double part) { return from + (to - from) * part; })},
    ExpressionFunction{"if", Three([](double condition, double yes, double no) { return condition != 0 ? yes : no; })},
    ExpressionFunction{"radians", One([](double degrees) { return degrees * std::numbers::pi / 180; })},
    ExpressionFunction{"degrees", One([](double radians) { return radians * 180 / std::numbers::pi; })},
};

} // namespace

int ExpressionFunction::fewestArguments() const noexcept
{
    if (std::holds_alternative<One>(function))
        return 1;
    return std::holds_alternative<Three>(function) ? 3 : 2;
}

std::span<const ExpressionFunction> expressionFunctions()
{
    return functions;
}

const ExpressionFunction* findExpressionFunction(std::string_view name)
{
    const auto found = std::ranges::find(functions, name, &ExpressionFunction::name);
    return found != functions.end() ? &*found : nullptr;
}

std::string namesOfExpressionFunctions()
{
    std::string names;
    for (const ExpressionFunction& function : functions)
        names.append(names.empty() ? "" : ", ").append(function.name);
    return names;
}

} // namespace meridane
