#pragma once

#include "orvane/app/lists/jobs/ListJob.h"
#include "orvane/app/lists/rows/RowRuns.h"

#include <limits>
#include <vector>

class NxMField;

namespace meridane {
class FieldComponents;
}

/// What is known of the numbers of one column.
struct ColumnStatistics {
    int count = 0; ///< of the rows
    int nanCount = 0;
    double minimum = std::numeric_limits<double>::infinity(); ///< of those that aren't NaN
    double maximum = -std::numeric_limits<double>::infinity();
    double mean = std::numeric_limits<double>::quiet_NaN(); ///< NaN if there is none
};

/// Computes the statistics of each column of some rows.
class StatisticsJob : public ListJob {
    Q_OBJECT

public:
    /// The list has numbers, and must live longer than the work. If it changes, the result is of no use.
    StatisticsJob(const NxMField& list, RowRuns rows, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~StatisticsJob() override;

    /// By column, once the job has finished.
    [[nodiscard]] const std::vector<ColumnStatistics>& result() const noexcept { return m_result; }

private:
    bool runPart() override;
    [[nodiscard]] double share() const override;
    void finishColumn();

    const NxMField& m_list;
    const meridane::FieldComponents& m_components;
    RowRuns m_rows;
    std::vector<ColumnStatistics> m_result;
    std::size_t m_run = 0;
    int m_next = 0; // in the run
    std::vector<double> m_values;
    double m_sum = 0;
    double m_lost = 0; // by the rounding of the sum
};
