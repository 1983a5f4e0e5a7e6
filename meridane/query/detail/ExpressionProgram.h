#pragma once

#include "meridane/query/ExpressionContext.h"
#include "meridane/query/detail/ExpressionScanner.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace meridane {

class FormulaParser;

/// An expression that can be evaluated.
class ExpressionProgram {
public:
    ExpressionProgram(std::string text, ExpressionContext context, Formula formula);
    ExpressionProgram(const ExpressionProgram&) = delete;
    ExpressionProgram& operator=(const ExpressionProgram&) = delete;
    ~ExpressionProgram();

    [[nodiscard]] const std::string& text() const noexcept { return m_text; }
    [[nodiscard]] const std::vector<bool>& uses() const noexcept { return m_formula.uses; }

    /// What the library can't evaluate, which is noticed before the first evaluation.
    [[nodiscard]] std::optional<QueryError> check();
    [[nodiscard]] std::variant<double, QueryError> evaluate(std::span<const double> variables);
    [[nodiscard]] std::optional<ExpressionRowFailure> evaluateRows(
        std::span<const std::span<const double>> columns, std::span<double> out);

private:
    [[nodiscard]] double valueOf(std::span<const double> variables);
    void fill(std::span<const std::span<const double>> columns, std::span<double> out);
    [[nodiscard]] bool isGood(double value) const;
    /// Why the value is an error; nothing if it isn't.
    [[nodiscard]] std::optional<QueryError> refusal(double value, std::span<const double> variables);
    [[nodiscard]] std::string reasonOfInfinity(std::span<const double> variables);

    std::string m_text;
    ExpressionContext m_context;
    Formula m_formula;
    std::vector<std::size_t> m_used; ///< indices of the variables that occur
    std::vector<double> m_variables;
    std::unique_ptr<FormulaParser> m_parser; ///< of single values, bound to `m_variables`
    std::unique_ptr<FormulaParser> m_rowParser; ///< of many rows, bound to the columns; made when it is needed
};

} // namespace meridane
