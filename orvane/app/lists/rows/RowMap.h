#pragma once

#include "orvane/app/lists/rows/RowRange.h"

#include <span>
#include <vector>

/// Which rows of a list a view of it shows, and in which order.
class RowMap {
public:
    /// The rows of a range, which need no memory.
    explicit RowMap(RowRange::Rows rows = {});
    /// These rows of a list with `listCount` rows; each at most once.
    RowMap(std::vector<int> rows, int listCount);

    /// The number of rows that are shown.
    [[nodiscard]] int count() const noexcept { return m_isRange ? m_range.count : static_cast<int>(m_rows.size()); }
    /// The row of the list that is shown at that place, which exists.
    [[nodiscard]] int listRow(int place) const
    {
        return m_isRange ? m_range.first + place * m_range.step : m_rows[static_cast<std::size_t>(place)];
    }
    /// Where a row of the list is shown; -1 if it isn't.
    [[nodiscard]] int placeOf(int listRow) const;
    /// Whether the rows of the list from the first to the last are shown in their order.
    [[nodiscard]] bool isWhole(int listCount) const noexcept
    {
        return m_isRange && m_range == RowRange::Rows{0, 1, listCount};
    }
    /// Whether the rows are shown in the order of the list.
    [[nodiscard]] bool isAscending() const;

private:
    RowRange::Rows m_range;
    std::vector<int> m_rows; // unless it is a range
    mutable std::vector<int> m_places; // by row of the list, made when it is needed
    int m_listCount = 0;
    bool m_isRange = true;
};
