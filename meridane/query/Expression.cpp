#include "meridane/query/Expression.h"

#include "meridane/query/detail/ExpressionProgram.h"
#include "meridane/query/detail/ExpressionScanner.h"

#include <algorithm>

namespace meridane {

std::variant<Expression, QueryError> Expression::parse(std::string_view text, const Context& context)
{
    std::variant<Formula, QueryError> scanned = ExpressionScanner(text, context).run();
    if (auto* const error = std::get_if<QueryError>(&scanned))
        return std::move(*error);
    auto program
        = std::make_shared<ExpressionProgram>(std::string(text), context, std::get<Formula>(std::move(scanned)));
    if (std::optional<QueryError> error = program->check())
        return *std::move(error);
    return Expression(std::move(program));
}

const std::string& Expression::text() const noexcept
{
    return m_program->text();
}

bool Expression::usesVariables() const noexcept
{
    return std::ranges::find(m_program->uses(), true) != m_program->uses().end();
}

bool Expression::usesVariable(std::size_t index) const noexcept
{
    return index < m_program->uses().size() && m_program->uses()[index];
}

std::variant<double, QueryError> Expression::evaluate(std::span<const double> variables) const
{
    return m_program->evaluate(variables);
}

std::variant<double, QueryError> Expression::evaluate(double variable) const
{
    const std::vector<double> variables(m_program->uses().size(), variable);
    return evaluate(variables);
}

std::optional<Expression::RowFailure> Expression::evaluateRows(
    std::span<const std::span<const double>> columns, std::span<double> out) const
{
    return m_program->evaluateRows(columns, out);
}

} // namespace meridane
