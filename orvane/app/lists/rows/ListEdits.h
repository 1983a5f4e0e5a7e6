#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/lists/rows/PastedRows.h"
#include "orvane/app/lists/rows/RowRuns.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <span>

class ListModel;
class NxMField;
class OrvServices;

/// What the user does to the list that a model shows. Each is one step of the history, with a label, and each changes
/// all that it says or nothing: then the result says why. Rows are those of the list.
class ListEdits {
    Q_DECLARE_TR_FUNCTIONS(ListEdits)

public:
    /// More rows than this are made only after a question.
    static constexpr int manyRows = 1'000'000;

    /// Both live longer.
    ListEdits(OrvServices& services, ListModel& model);

    /// Sets a component of these rows, ascending and unique, to a value for each.
    orvane::Result<> setNumbers(std::span<const int> rows, int column, std::span<const double> values);
    orvane::Result<> setNumber(int row, int column, double value) { return setNumbers({&row, 1}, column, {&value, 1}); }
    /// Sets rows, ascending and unique, of a list of texts or of an unknown class to one text.
    orvane::Result<> setText(std::span<const int> rows, const QString& text);
    /// Inserts rows with the default of their class.
    orvane::Result<> insertRows(int before, int count);
    /// Inserts copies of these rows behind the last of them.
    orvane::Result<> duplicateRows(const RowRuns& rows);
    orvane::Result<> removeRows(const RowRuns& rows);
    /// Moves these rows together before the row `before`.
    orvane::Result<> moveRows(const RowRuns& rows, int before);
    /// Appends or removes rows at the end.
    orvane::Result<> resize(int count);
    enum class Cause { Paste, Fill };
    /// Sets the cells of the columns from `column` on in these rows, in this order, then in new rows at the end of the
    /// list. The cells are such as the list takes. The cause is for the label.
    orvane::Result<> setCells(const PastedRows& cells, std::span<const int> rows, int column, Cause cause);

    /// The list by the names of its node and itself, such as "arm.points".
    [[nodiscard]] QString listName() const;

private:
    using Write = std::function<bool(NxMField& list)>;

    orvane::Result<> push(const QString& label, const Write& write);
    [[nodiscard]] orvane::Result<> checkNumbers(std::span<const int> rows, std::span<const double> values) const;
    [[nodiscard]] orvane::Result<> checkLength(long long rows) const;

    OrvServices& m_services;
    ListModel& m_model;
};
