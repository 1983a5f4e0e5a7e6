#pragma once

#include "orvane/app/lists/jobs/ListJob.h"
#include "orvane/app/lists/rows/RowExpression.h"

#include <vector>

class NxMField;

/// Computes the values of a formula for some rows of a list. Fails for the first row that has none.
class ApplyJob : public ListJob {
    Q_OBJECT

public:
    /// The rows are ascending. The list must live longer than the work. If it changes, the result is of no use.
    ApplyJob(const NxMField& list, std::vector<int> rows, RowExpression expression,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~ApplyJob() override;

    [[nodiscard]] const std::vector<int>& rows() const noexcept { return m_rows; }
    /// A value for each row, once the job has finished.
    [[nodiscard]] const std::vector<double>& values() const noexcept { return m_values; }

private:
    bool runPart() override;
    [[nodiscard]] double share() const override;

    const NxMField& m_list;
    std::vector<int> m_rows;
    RowExpression m_expression;
    std::vector<double> m_values;
    std::size_t m_next = 0;
};
