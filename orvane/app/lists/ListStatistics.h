#pragma once

#include "orvane/app/lists/jobs/StatisticsJob.h"
#include "orvane/app/lists/rows/RowRuns.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class JobBar;
class ListModel;
class ListView;
class QLabel;
class QTableWidget;

/// The statistics of each column: of the selected rows if they are several, otherwise of all that are shown. They are
/// computed in slices while they are in sight, and again when the list or the selection changes. The rows are painted
/// first.
class ListStatistics : public QWidget {
    Q_OBJECT

public:
    /// All live longer.
    ListStatistics(ListModel& model, ListView& view, JobBar& jobBar, QWidget* parent = nullptr);
    ~ListStatistics() override;

    /// Whether the statistics that are shown are those of the present rows.
    [[nodiscard]] bool isFresh() const noexcept { return m_isFresh; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void outdate();
    void compute();
    void show(const std::vector<ColumnStatistics>& columns);

    ListModel& m_model;
    ListView& m_view;
    JobBar& m_jobBar;
    QLabel* m_heading;
    QTableWidget* m_table;
    std::unique_ptr<StatisticsJob> m_job;
    QTimer m_timer;
    bool m_isFresh = false;
    bool m_awaitsPaint = false; // of the rows
};
