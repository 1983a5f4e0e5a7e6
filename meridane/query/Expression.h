#pragma once

#include "meridane/query/ExpressionContext.h"
#include "meridane/query/QueryError.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace meridane {

class ExpressionProgram;

/// A number or a formula as people write it, the same everywhere and in every locale.
///
/// - The decimal sign is a point or a comma, so that `1,5` and also `1,234` have a fraction. Signs between thousands
///   are refused with a message that gives the number without them. `;` separates the arguments of a function.
/// - `+ - * / ^ ( )`, `50%` is 0.5, `0x1F` is 31; comparisons, `and`, `or` and `not` are 1 or 0. `pi` and `e`.
/// - `sin cos tan asin acos atan atan2 sinh cosh tanh exp ln log2 log10 sqrt cbrt pow hypot abs sign floor ceil round
///   trunc mod min max clamp mix if radians degrees`; angles are in radians.
/// - The variables that the context names. `45deg` is an angle in radians where the context is an angle.
/// - Digits, signs and blanks that other scripts and programs use for these are read like them.
///
/// Texts are at most `mostBytes` long and have at most `mostBrackets` brackets within each other. Evaluation takes time
/// that is bounded by the length. Copies share their program and are cheap. Not for several threads at a time.
class Expression {
public:
    static constexpr std::size_t mostBytes
        = ExpressionContext::mostBytes; ///< the length of the longest text that `parse` takes
    static constexpr std::size_t mostBrackets = ExpressionContext::mostBrackets; ///< how many may be within each other

    /// What an expression is for.
    using Context = ExpressionContext;

    /// Reads a text as a whole. The error says what is wrong and what to write instead.
    [[nodiscard]] static std::variant<Expression, QueryError> parse(std::string_view text, const Context& context = {});

    /// The text as it was passed to `parse`.
    [[nodiscard]] const std::string& text() const noexcept;
    /// Whether the value depends on the variables: on any, or on the one of that index.
    [[nodiscard]] bool usesVariables() const noexcept;
    /// Whether the value depends on the variable with that index in the context.
    [[nodiscard]] bool usesVariable(std::size_t index) const noexcept;

    /// The value, with one number for each variable of the context. A result that isn't finite is an error, unless the
    /// context allows it and the text names `inf` or `nan` or a variable that it uses isn't finite.
    [[nodiscard]] std::variant<double, QueryError> evaluate(std::span<const double> variables) const;
    /// The same with that number for all variables, which are one at most where it matters.
    [[nodiscard]] std::variant<double, QueryError> evaluate(double variable = 0) const;

    /// The first row whose value is an error, and the error.
    using RowFailure = ExpressionRowFailure;
    /// The values of many rows, about as fast as a loop of the library below can be. There is a column for each
    /// variable, as long as `out`; columns of variables that aren't used may be empty. After a failure the contents of
    /// `out` are undefined.
    [[nodiscard]] std::optional<RowFailure> evaluateRows(
        std::span<const std::span<const double>> columns, std::span<double> out) const;

private:
    explicit Expression(std::shared_ptr<ExpressionProgram> program)
        : m_program(std::move(program))
    {
    }

    std::shared_ptr<ExpressionProgram> m_program;
};

} // namespace meridane
