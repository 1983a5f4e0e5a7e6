#include "orvane/app/lists/rows/RowMap.h"

#include <algorithm>
#include <utility>

RowMap::RowMap(RowRange::Rows rows)
    : m_range(rows)
{
}

RowMap::RowMap(std::vector<int> rows, int listCount)
    : m_rows(std::move(rows))
    , m_listCount(listCount)
    , m_isRange(false)
{
}

int RowMap::placeOf(int listRow) const
{
    if (m_isRange) {
        const long long distance = static_cast<long long>(listRow) - m_range.first;
        const long long place = distance / m_range.step;
        return place * m_range.step == distance && place >= 0 && place < m_range.count ? static_cast<int>(place) : -1;
    }
    if (listRow < 0 || listRow >= m_listCount)
        return -1;
    if (m_places.empty()) {
        m_places.assign(static_cast<std::size_t>(m_listCount), -1);
        for (std::size_t place = 0; place < m_rows.size(); ++place)
            m_places[static_cast<std::size_t>(m_rows[place])] = static_cast<int>(place);
    }
    return m_places[static_cast<std::size_t>(listRow)];
}

bool RowMap::isAscending() const
{
    return m_isRange ? m_range.step > 0 : std::ranges::is_sorted(m_rows);
}
