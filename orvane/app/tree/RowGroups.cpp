#include "orvane/app/tree/RowGroups.h"

#include <algorithm>
#include <numeric>
#include <utility>

RowGroups::RowGroups(const QItemSelection& ranges)
{
    for (const QItemSelectionRange& range : ranges) {
        std::vector<int>& rows = rowsBelow(range.parent());
        const std::size_t before = rows.size();
        rows.resize(before + static_cast<std::size_t>(range.height()));
        std::iota(rows.begin() + static_cast<std::ptrdiff_t>(before), rows.end(), range.top());
    }
}

void RowGroups::add(const QModelIndex& parent, int row)
{
    rowsBelow(parent).push_back(row);
}

void RowGroups::add(const QModelIndex& parent, std::span<const int> rows)
{
    std::vector<int>& known = rowsBelow(parent);
    known.insert(known.end(), rows.begin(), rows.end());
}

std::vector<RowGroups::Group> RowGroups::take()
{
    m_places.clear();
    std::vector<Group> groups = std::exchange(m_groups, {});
    for (Group& group : groups) {
        if (!std::ranges::is_sorted(group.rows))
            std::ranges::sort(group.rows);
        group.rows.erase(std::unique(group.rows.begin(), group.rows.end()), group.rows.end());
    }
    return groups;
}

std::vector<int>& RowGroups::rowsBelow(const QModelIndex& parent)
{
    // Rows that follow each other are mostly of the same group.
    if (!m_groups.empty() && m_groups.back().parent == parent)
        return m_groups.back().rows;
    const auto known = m_places.constFind(parent);
    const std::size_t place = known != m_places.constEnd() ? *known : m_groups.size();
    if (place == m_groups.size()) {
        m_places.insert(parent, place);
        m_groups.push_back({parent, {}});
    }
    return m_groups[place].rows;
}

namespace orvane {

QItemSelection rangesOf(const QAbstractItemModel& model, std::span<const RowGroups::Group> groups)
{
    QItemSelection ranges;
    for (const RowGroups::Group& group : groups) {
        const int count = model.rowCount(group.parent);
        const int lastColumn = model.columnCount(group.parent) - 1;
        const auto end = std::ranges::lower_bound(group.rows, count);
        for (auto first = std::ranges::lower_bound(group.rows, 0); first != end;) {
            auto last = first;
            while (last + 1 != end && *(last + 1) == *last + 1)
                ++last;
            ranges.append(QItemSelectionRange(
                model.index(*first, 0, group.parent), model.index(*last, lastColumn, group.parent)));
            first = last + 1;
        }
    }
    return ranges;
}

} // namespace orvane
