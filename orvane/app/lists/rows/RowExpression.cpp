#include "orvane/app/lists/rows/RowExpression.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/lists/rows/ListColumns.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// More are divided among threads, which wait for each other by spinning.
constexpr std::size_t rowsPerEvaluation = 256;

orvane::Failure failureOfRow(int row, const meridane::QueryError& error)
{
    return {RowExpression::tr("Row %1: %2").arg(row).arg(orvane::toolkitText(orvane::toQString(error.message)))};
}

} // namespace

orvane::Result<RowExpression> RowExpression::parse(const QString& text, const ListColumns& columns, Use use, int column)
{
    meridane::Expression::Context context;
    context.variables = columns.variables();
    std::vector<int> sources(context.variables.size());
    std::iota(sources.begin(), sources.end(), 0);
    if (use == Use::Column && std::ranges::find(context.variables, "x") == context.variables.end()) {
        context.variables.emplace_back("x");
        sources.push_back(column);
    }
    context.variables.emplace_back("i");
    sources.push_back(-1);
    context.mayBeInfinite = use == Use::Filter || !columns.components()->isWhole();
    context.isAngle = use == Use::Column && columns.components()->name(column) == "angle";
    auto parsed = meridane::Expression::parse(text.toStdString(), context);
    if (const auto* const error = std::get_if<meridane::QueryError>(&parsed))
        return orvane::Failure{orvane::toolkitText(orvane::toQString(error->message))};
    RowExpression result(std::get<meridane::Expression>(std::move(parsed)));
    if (use == Use::Filter && !result.m_expression.usesVariables()) {
        const auto value = result.m_expression.evaluate(std::vector<double>(sources.size()));
        const auto* const number = std::get_if<double>(&value);
        if (number != nullptr && std::isnan(*number))
            return orvane::Failure{tr("This is NaN, which is neither true nor false. To find rows with NaN, compare a "
                                      "component with itself, such as not x = x.")};
    }
    result.m_sources = std::move(sources);
    result.m_columns.resize(result.m_sources.size());
    return result;
}

template <typename Fill>
std::vector<std::span<const double>> RowExpression::readColumns(std::size_t rows, const Fill& fill)
{
    std::vector<std::span<const double>> columns(m_sources.size());
    for (std::size_t variable = 0; variable < m_sources.size(); ++variable) {
        if (!m_expression.usesVariable(variable))
            continue;
        m_columns[variable].resize(rows);
        fill(m_sources[variable], std::span(m_columns[variable]));
        columns[variable] = m_columns[variable];
    }
    return columns;
}

orvane::Result<> RowExpression::evaluate(const NxMField& list, int first, std::span<double> values)
{
    const auto* const components = meridane::FieldComponents::of(list);
    const auto columns = readColumns(values.size(), [&](int component, std::span<double> column) {
        if (component < 0)
            std::iota(column.begin(), column.end(), static_cast<double>(first));
        else
            components->read(list, first, component, column);
    });
    return evaluate(columns, values, [first](std::size_t place) { return first + static_cast<int>(place); });
}

orvane::Result<> RowExpression::evaluate(const NxMField& list, std::span<const int> rows, std::span<double> values)
{
    if (rows.empty() || rows.back() - rows.front() + 1 == static_cast<int>(rows.size()))
        return rows.empty() ? orvane::Result<>() : evaluate(list, rows.front(), values);
    const auto* const components = meridane::FieldComponents::of(list);
    const auto columns = readColumns(values.size(), [&](int component, std::span<double> column) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            column[i] = component < 0 ? rows[i] : components->get(list, rows[i], component);
    });
    return evaluate(columns, values, [rows](std::size_t place) { return rows[place]; });
}

template <typename RowAt>
orvane::Result<> RowExpression::evaluate(
    std::span<const std::span<const double>> columns, std::span<double> values, const RowAt& rowAt)
{
    std::vector<std::span<const double>> parts(columns.size());
    for (std::size_t first = 0; first < values.size(); first += rowsPerEvaluation) {
        const std::size_t count = std::min(rowsPerEvaluation, values.size() - first);
        std::ranges::transform(columns, parts.begin(),
            [&](std::span<const double> column) { return column.empty() ? column : column.subspan(first, count); });
        if (const auto failure = m_expression.evaluateRows(parts, values.subspan(first, count)))
            return failureOfRow(rowAt(first + failure->row), failure->error);
    }
    return {};
}
