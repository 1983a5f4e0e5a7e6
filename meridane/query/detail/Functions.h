#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace meridane {

/// A function of expressions.
struct ExpressionFunction {
    using One = double (*)(double);
    using Two = double (*)(double, double);
    using Three = double (*)(double, double, double);
    using Many = double (*)(const double*, int);

    std::string_view name;
    std::variant<One, Two, Three, Many> function;

    /// The number of arguments; a function of many has at least two.
    [[nodiscard]] int fewestArguments() const noexcept;
    [[nodiscard]] bool takesMore() const noexcept { return std::holds_alternative<Many>(function); }
};

/// All of them.
[[nodiscard]] std::span<const ExpressionFunction> expressionFunctions();
/// The function of that name, or null.
[[nodiscard]] const ExpressionFunction* findExpressionFunction(std::string_view name);
/// Their names, separated by commas.
[[nodiscard]] std::string namesOfExpressionFunctions();

} // namespace meridane
