#pragma once

#include "orvane/app/base/Result.h"

#include "meridane/query/Expression.h"

#include <QCoreApplication>
#include <QString>

#include <span>
#include <vector>

class ListColumns;
class NxMField;

/// A formula that is evaluated for rows of a numeric list. It knows the components of the row by their names and the
/// number of the row as `i`.
class RowExpression {
    Q_DECLARE_TR_FUNCTIONS(RowExpression)

public:
    /// What the value of the formula is for.
    enum class Use {
        Filter, ///< 0 means no; rows that are NaN don't pass
        Column, ///< the new value of a column, which is known as `x` too, unless a component has this name
    };

    /// `column` is the one that gets the value.
    [[nodiscard]] static orvane::Result<RowExpression> parse(
        const QString& text, const ListColumns& columns, Use use, int column = 0);

    /// The values for the rows from `first` on; NaN components for rows that don't exist. The list is one of the class
    /// for which the formula was parsed. Fails for the first row without a value.
    orvane::Result<> evaluate(const NxMField& list, int first, std::span<double> values);
    /// The same for these rows.
    orvane::Result<> evaluate(const NxMField& list, std::span<const int> rows, std::span<double> values);

private:
    /// Fills the columns of the variables that are used, with a function that fills the one of a component.
    template <typename Fill>
    std::vector<std::span<const double>> readColumns(std::size_t rows, const Fill& fill);

    explicit RowExpression(meridane::Expression expression)
        : m_expression(std::move(expression))
    {
    }

    template <typename RowAt>
    orvane::Result<> evaluate(
        std::span<const std::span<const double>> columns, std::span<double> values, const RowAt& rowAt);

    meridane::Expression m_expression;
    std::vector<int> m_sources; // for each variable, the component; -1 for the number of the row
    std::vector<std::vector<double>> m_columns; // for each variable that is used
};
