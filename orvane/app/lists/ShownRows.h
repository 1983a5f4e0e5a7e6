#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/lists/jobs/RowsJob.h"
#include "orvane/app/lists/rows/RowRange.h"

#include <QObject>
#include <QString>

#include <memory>

class JobBar;
class ListModel;

/// Which rows of its list a model shows: a range, filtered and sorted. They are found in slices, and again when the
/// list changes; until then the model shows those found before.
class ShownRows : public QObject {
    Q_OBJECT

public:
    /// Both live longer.
    ShownRows(ListModel& model, JobBar& jobBar, QObject* parent = nullptr);
    ~ShownRows() override;

    /// Shows the rows of a range. Fails, and changes nothing, for a text that is none.
    orvane::Result<> setRange(const QString& text);
    /// Shows the rows that pass: a formula such as `x > 0 and z < 1` for numbers, words for texts. Fails, and changes
    /// nothing, for a text that is neither.
    orvane::Result<> setFilter(const QString& text);
    void setOrder(RowsJob::Order order);
    [[nodiscard]] RowsJob::Order order() const noexcept { return m_order; }
    /// Shows all rows, of the list that comes next.
    void clear();
    /// Whether rows are still being found.
    [[nodiscard]] bool isBusy() const noexcept { return m_job != nullptr; }

Q_SIGNALS:
    /// All rows have been found.
    void settled();
    /// The filter failed for a row, or was cancelled; it is off now.
    void failed(const QString& message);

private:
    void restart();
    void finish();
    void giveUp(const QString& message);
    [[nodiscard]] orvane::Result<RowsJob::Filter> makeFilter(const QString& text) const;

    ListModel& m_model;
    JobBar& m_jobBar;
    RowRange m_range;
    QString m_filterText;
    RowsJob::Order m_order;
    std::unique_ptr<RowsJob> m_job; // while rows are being found
};
