#include "meridane/query/detail/ExpressionProgram.h"

#include "meridane/query/NumberText.h"
#include "meridane/query/detail/FormulaParser.h"

#include <algorithm>
#include <cassert>
#include <cfenv>
#include <cmath>

namespace meridane {
namespace {

/// The library divides more rows among threads. Fewer ones are faster one by one: no parser is bound to the columns and
/// no thread is waited for.
constexpr std::size_t fewRows = 10'000;

} // namespace

ExpressionProgram::ExpressionProgram(std::string text, ExpressionContext context, Formula formula)
    : m_text(std::move(text))
    , m_context(std::move(context))
    , m_formula(std::move(formula))
    , m_variables(m_context.variables.size(), 1.0)
    , m_parser(std::make_unique<FormulaParser>())
{
    for (std::size_t i = 0; i < m_variables.size(); ++i) {
        m_parser->bind(i, &m_variables[i]);
        if (m_formula.uses[i])
            m_used.push_back(i);
    }
}

ExpressionProgram::~ExpressionProgram() = default;

std::optional<QueryError> ExpressionProgram::check()
{
    try {
        m_parser->SetExpr(m_formula.text);
        static_cast<void>(m_parser->Eval());
        return std::nullopt;
    } catch (const mu::ParserError& error) {
        return QueryError{"The formula can't be evaluated: " + error.GetMsg(), 0};
    }
}

double ExpressionProgram::valueOf(std::span<const double> variables)
{
    assert(variables.size() == m_variables.size() && "a number for each variable");
    std::ranges::copy(variables, m_variables.begin());
    return m_parser->Eval();
}

std::variant<double, QueryError> ExpressionProgram::evaluate(std::span<const double> variables)
{
    const double value = valueOf(variables);
    if (!isGood(value)) {
        if (std::optional<QueryError> error = refusal(value, variables))
            return *std::move(error);
    }
    return value;
}

bool ExpressionProgram::isGood(double value) const
{
    return std::isfinite(value) && (!m_context.isWhole || value == std::trunc(value));
}

std::optional<QueryError> ExpressionProgram::refusal(double value, std::span<const double> variables)
{
    if (std::isfinite(value))
        return QueryError{numberText(value) + " isn't a whole number."};
    bool isGiven = m_formula.namesInfinity;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        if (!m_formula.uses[i] || std::isfinite(variables[i]))
            continue;
        if (!m_context.mayBeInfinite)
            return QueryError{m_context.variables[i] + " is " + numberText(variables[i])
                + ", which isn't a number to "
                  "calculate with."};
        isGiven = true;
    }
    if (!isGiven)
        return QueryError{reasonOfInfinity(variables)};
    if (m_context.isWhole)
        return QueryError{numberText(value) + " isn't a whole number."};
    return std::nullopt;
}

// The processor notes what happens on the way. Parts without variables must not be calculated beforehand.
std::string ExpressionProgram::reasonOfInfinity(std::span<const double> variables)
{
    FormulaParser parser;
    parser.EnableOptimizer(false);
    for (std::size_t i = 0; i < variables.size(); ++i)
        parser.bind(i, &variables[i]);
    parser.SetExpr(m_formula.text);
    std::feclearexcept(FE_ALL_EXCEPT);
    static_cast<void>(parser.Eval());
    const int exceptions = std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW);
    std::feclearexcept(FE_ALL_EXCEPT);
    if ((exceptions & FE_DIVBYZERO) != 0)
        return m_formula.text.find('/') != std::string::npos
            ? "A division by 0 has no result."
            : "The result is infinite, such as the logarithm of 0 or a negative power of 0.";
    if ((exceptions & FE_OVERFLOW) != 0)
        return "The result is too large for a number.";
    return "The result isn't defined, such as 0 divided by 0 or the square root of a negative number.";
}

void ExpressionProgram::fill(std::span<const std::span<const double>> columns, std::span<double> out)
{
    if (out.size() <= fewRows) {
        for (std::size_t row = 0; row < out.size(); ++row) {
            for (const std::size_t i : m_used)
                m_variables[i] = columns[i][row];
            out[row] = m_parser->Eval();
        }
        return;
    }
    if (m_rowParser == nullptr) {
        m_rowParser = std::make_unique<FormulaParser>();
        m_rowParser->SetExpr(m_formula.text);
    }
    for (const std::size_t i : m_used)
        m_rowParser->bind(i, columns[i].data());
    m_rowParser->Eval(out.data(), static_cast<int>(out.size()));
}

std::optional<ExpressionRowFailure> ExpressionProgram::evaluateRows(
    std::span<const std::span<const double>> columns, std::span<double> out)
{
    assert(columns.size() == m_variables.size() && "a column for each variable");
    fill(columns, out);
    std::vector<double> variables(columns.size());
    for (std::size_t row = 0; row < out.size(); ++row) {
        if (isGood(out[row])) [[likely]]
            continue;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            assert((!m_formula.uses[i] || columns[i].size() == out.size()) && "as many rows as results");
            variables[i] = m_formula.uses[i] ? columns[i][row] : 0;
        }
        if (std::optional<QueryError> error = refusal(out[row], variables))
            return ExpressionRowFailure{row, *std::move(error)};
    }
    return std::nullopt;
}

} // namespace meridane
