#include "orvane/app/lists/jobs/ApplyJob.h"

#include <algorithm>
#include <utility>

ApplyJob::ApplyJob(const NxMField& list, std::vector<int> rows, RowExpression expression, SliceClock::Clock clock)
    : ListJob(clock)
    , m_list(list)
    , m_rows(std::move(rows))
    , m_expression(std::move(expression))
    , m_values(m_rows.size())
{
}

ApplyJob::~ApplyJob() = default;

bool ApplyJob::runPart()
{
    const std::size_t count = std::min<std::size_t>(rowsPerPart, m_rows.size() - m_next);
    const auto rows = std::span(m_rows).subspan(m_next, count);
    if (const auto result = m_expression.evaluate(m_list, rows, std::span(m_values).subspan(m_next, count)); !result) {
        failWith(result.error());
        return false;
    }
    m_next += count;
    return m_next < m_rows.size();
}

double ApplyJob::share() const
{
    return m_rows.empty() ? 1 : static_cast<double>(m_next) / static_cast<double>(m_rows.size());
}
