#include "orvane/app/base/RowFilter.h"

#include "orvane/app/base/SliceClock.h"

#include <algorithm>

void RowFilter::setQuery(const meridane::Query& query)
{
    m_query = query;
    m_found.clear();
    m_next = 0;
}

std::vector<std::uint32_t> RowFilter::find(std::size_t count, const RowText& text)
{
    constexpr std::size_t rowsAtOnce = 16;
    const SliceClock slice;
    std::vector<std::uint32_t> found;
    while (m_next < count && !slice.isSpent()) {
        const std::size_t end = std::min(count, m_next + rowsAtOnce);
        for (; m_next < end; ++m_next) {
            const QByteArray row = text(m_next).toUtf8();
            if (m_query.matchesText({row.constData(), static_cast<std::size_t>(row.size())}))
                found.push_back(static_cast<std::uint32_t>(m_next));
        }
    }
    return found;
}

std::size_t RowFilter::countBefore(std::size_t row) const
{
    return static_cast<std::size_t>(std::lower_bound(m_found.begin(), m_found.end(), row) - m_found.begin());
}

void RowFilter::restartFrom(std::size_t row)
{
    m_found.resize(countBefore(row));
    m_next = std::min(m_next, row);
}

void RowFilter::removeFirst(std::size_t rows)
{
    m_found.erase(m_found.begin(), m_found.begin() + static_cast<std::ptrdiff_t>(countBefore(rows + 1)));
    for (std::uint32_t& row : m_found)
        row -= static_cast<std::uint32_t>(rows);
    m_next -= std::min(m_next, rows);
}
