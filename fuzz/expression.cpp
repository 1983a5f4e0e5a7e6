// Numbers and formulas: each text has a value or a message with a place in it. Rows have the values of single numbers,
// and a value's own text is the same value.

#include "meridane/query/Expression.h"

#include "Fuzz.h"

#include "meridane/query/NumberText.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

using meridane::Expression;
using meridane::QueryError;

namespace {

bool areSame(double left, double right)
{
    return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right)
        || (std::isnan(left) && std::isnan(right));
}

void checkMessage(const QueryError& error, std::size_t size)
{
    fuzz::check(!error.message.empty() && error.message.back() == '.', "an error has a message of whole sentences");
    fuzz::check(error.message.size() < 1000, "a message is short");
    fuzz::check(!error.message.starts_with("The formula can't be evaluated"), "what is accepted can be evaluated");
    fuzz::check(error.position <= size, "an error is at a place in the text");
}

void evaluate(const Expression& expression, bool mayBeInfinite, bool isWhole)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    static constexpr std::array values{0.0, 1.0, -2.5, 1e300, infinity};
    for (const double x : values) {
        const std::array variables{x, -x};
        const auto single = expression.evaluate(variables);
        const std::vector<double> first(300, x);
        const std::vector<double> second(300, -x);
        const std::array<std::span<const double>, 2> columns{first, second};
        std::vector<double> out(first.size());
        const auto failure = expression.evaluateRows(columns, out);
        fuzz::check(failure.has_value() == std::holds_alternative<QueryError>(single), "rows fail as numbers do");
        if (failure) {
            checkMessage(failure->error, 0);
            continue;
        }
        const double value = std::get<double>(single);
        fuzz::check(areSame(out.front(), value) && areSame(out.back(), value), "rows have the values of numbers");
        fuzz::check(mayBeInfinite || std::isfinite(value), "a result is finite where it must be");
        fuzz::check(!isWhole || value == std::trunc(value), "a result is whole where it must be");
        const auto again = Expression::parse(meridane::numberText(value), {.mayBeInfinite = true});
        fuzz::check(std::holds_alternative<Expression>(again), "a value's own text is read");
        fuzz::check(areSame(std::get<double>(std::get<Expression>(again).evaluate()), value), "it is the same value");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const std::string_view text = fuzz::toText(bytes, count);
    for (const bool flag : {false, true}) {
        const Expression::Context context{
            .variables = {"x", "y"}, .isAngle = flag, .mayBeInfinite = flag, .isWhole = text.ends_with(' ')};
        const auto parsed = Expression::parse(text, context);
        if (const auto* const error = std::get_if<QueryError>(&parsed))
            checkMessage(*error, count);
        else
            evaluate(std::get<Expression>(parsed), context.mayBeInfinite, context.isWhole);
    }
    return 0;
}
