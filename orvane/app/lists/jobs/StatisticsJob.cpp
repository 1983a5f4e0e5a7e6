#include "orvane/app/lists/jobs/StatisticsJob.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"

#include <algorithm>
#include <cmath>
#include <utility>

StatisticsJob::StatisticsJob(const NxMField& list, RowRuns rows, SliceClock::Clock clock)
    : ListJob(clock)
    , m_list(list)
    , m_components(*meridane::FieldComponents::of(list))
    , m_rows(std::move(rows))
    , m_result(1)
{
    m_values.reserve(rowsPerPart);
}

StatisticsJob::~StatisticsJob() = default;

bool StatisticsJob::runPart()
{
    ColumnStatistics& column = m_result.back();
    if (m_run == m_rows.size()) {
        finishColumn();
        if (static_cast<int>(m_result.size()) == m_components.count())
            return false;
        m_result.emplace_back();
        return true;
    }
    const RowRun run = m_rows[m_run];
    const int count = std::min(run.count - m_next, rowsPerPart);
    m_values.resize(static_cast<std::size_t>(count));
    m_components.read(m_list, run.first + m_next, static_cast<int>(m_result.size()) - 1, m_values);
    for (const double value : m_values) {
        if (std::isnan(value)) {
            ++column.nanCount;
            continue;
        }
        column.minimum = std::min(column.minimum, value);
        column.maximum = std::max(column.maximum, value);
        // The error of each addition is added at the end.
        const double sum = m_sum + value;
        m_lost += std::abs(m_sum) >= std::abs(value) ? (m_sum - sum) + value : (value - sum) + m_sum;
        m_sum = sum;
    }
    column.count += count;
    m_next += count;
    if (m_next == run.count) {
        ++m_run;
        m_next = 0;
    }
    return true;
}

void StatisticsJob::finishColumn()
{
    ColumnStatistics& column = m_result.back();
    // With infinities the lost part is NaN.
    const double sum = std::isfinite(m_sum) ? m_sum + m_lost : m_sum;
    if (column.count > column.nanCount)
        column.mean = sum / (column.count - column.nanCount);
    m_sum = 0;
    m_lost = 0;
    m_run = 0;
    m_next = 0;
}

double StatisticsJob::share() const
{
    const double columns = m_components.count();
    const double part = m_rows.empty() ? 1 : static_cast<double>(m_run) / static_cast<double>(m_rows.size());
    return (static_cast<double>(m_result.size()) - 1 + part) / columns;
}
