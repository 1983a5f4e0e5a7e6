#include "orvane/app/lists/jobs/RowsJob.h"

#include "orvane/app/base/UserLocale.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

RowsJob::RowsJob(NxMField& list, RowRange range, Filter filter, Order order, SliceClock::Clock clock)
    : ListJob(clock)
    , m_list(list)
    , m_columns(list)
    , m_range(range.rows(list.getNum()))
    , m_filter(std::move(filter))
    , m_order(order)
    , m_count(list.getNum())
    , m_collator(orvane::messageLocale())
{
    // Rows are filtered in the order of the list, whatever that of the range is.
    const int last = m_range.first + (m_range.count - 1) * m_range.step;
    m_next = std::min(m_range.first, last);
    m_end = m_range.count > 0 ? std::max(m_range.first, last) + 1 : m_next;
    m_collator.setNumericMode(true);
}

RowsJob::~RowsJob() = default;

RowMap RowsJob::takeMap()
{
    return m_isListed ? RowMap(std::move(m_rows), m_count) : RowMap(m_range);
}

bool RowsJob::runPart()
{
    switch (m_phase) {
    case Phase::Filter:
        return filterPart();
    case Phase::List:
        return listPart();
    case Phase::Keys:
        return keysPart();
    case Phase::Sort:
        return sortPart();
    case Phase::Gather:
        return gatherPart();
    case Phase::Done:
        break;
    }
    return false;
}

double RowsJob::share() const
{
    const double filters = m_filter ? 1 : 0;
    const double sorts = m_order.column >= 0 ? 2 : 0;
    const double part = m_end > 0 ? static_cast<double>(m_next) / m_end : 1;
    switch (m_phase) {
    case Phase::Filter:
        return part * filters / (filters + sorts);
    case Phase::List:
        return 0;
    case Phase::Keys:
        return (filters + part / 2) / (filters + sorts);
    case Phase::Sort:
        return (filters + 0.5 + 1.5 * std::max(m_numberSort.share(), m_textSort.share())) / (filters + sorts);
    case Phase::Gather:
    case Phase::Done:
        break;
    }
    return 1;
}

bool RowsJob::filterPart()
{
    if (!m_filter) {
        m_phase = m_order.column >= 0 ? Phase::List : Phase::Done;
        return m_phase != Phase::Done;
    }
    m_isListed = true;
    m_rows.reserve(static_cast<std::size_t>(m_range.count));
    std::array<bool, rowsPerPart> passes{};
    const int count = std::min(rowsPerPart, m_end - m_next);
    if (count > 0) {
        if (const orvane::Result<> result = m_filter(m_next, std::span(passes).first(static_cast<std::size_t>(count)));
            !result) {
            failWith(result.error());
            return false;
        }
        const RowMap range(m_range);
        for (int i = 0; i < count; ++i) {
            if (passes.at(static_cast<std::size_t>(i)) && range.placeOf(m_next + i) >= 0)
                m_rows.push_back(m_next + i);
        }
        m_next += count;
    }
    if (m_next < m_end)
        return true;
    if (m_range.step < 0)
        std::ranges::reverse(m_rows);
    beginSort();
    return m_phase != Phase::Done;
}

bool RowsJob::listPart()
{
    const RowMap range(m_range);
    m_rows.reserve(static_cast<std::size_t>(m_range.count));
    for (int i = 0; i < rowsPerPart && std::ssize(m_rows) < m_range.count; ++i)
        m_rows.push_back(range.listRow(static_cast<int>(m_rows.size())));
    m_isListed = true;
    if (std::ssize(m_rows) == m_range.count)
        beginSort();
    return true;
}

void RowsJob::beginSort()
{
    m_phase = m_order.column >= 0 ? Phase::Keys : Phase::Done;
    m_next = 0;
    m_end = static_cast<int>(m_rows.size());
    if (m_phase == Phase::Done)
        return;
    // A list that grows copies what it has, all in one slice.
    if (m_columns.isNumeric()) {
        m_keys.reserve(m_rows.size());
    } else {
        m_textKeys.reserve(m_rows.size());
        m_places.reserve(m_rows.size());
    }
}

bool RowsJob::keysPart()
{
    const bool isNumeric = m_columns.isNumeric();
    const int stop = std::min(m_end, m_next + (isNumeric ? rowsPerPart : rowsPerPart / 16));
    for (; m_next < stop; ++m_next) {
        const int row = m_rows[static_cast<std::size_t>(m_next)];
        if (!isNumeric) {
            m_textKeys.push_back(m_collator.sortKey(m_columns.text(row, m_order.column)));
            m_places.push_back(m_next);
            continue;
        }
        const double key = m_columns.number(row, m_order.column);
        if (std::isnan(key))
            m_last.push_back(row);
        else
            m_keys.push_back({key, row});
    }
    if (m_next < m_end)
        return true;
    m_phase = Phase::Sort;
    if (isNumeric)
        m_numberSort = SliceSort<NumberKey>(std::exchange(m_keys, {}));
    else
        m_textSort = SliceSort<int>(std::exchange(m_places, {}));
    return true;
}

bool RowsJob::sortPart()
{
    const bool isDescending = m_order.isDescending;
    const auto textLess = [this, isDescending](int left, int right) {
        const auto& leftKey = m_textKeys[static_cast<std::size_t>(left)];
        const auto& rightKey = m_textKeys[static_cast<std::size_t>(right)];
        return isDescending ? rightKey < leftKey : leftKey < rightKey;
    };
    const auto numberLess = [isDescending](const NumberKey& left, const NumberKey& right) {
        return isDescending ? right.key < left.key : left.key < right.key;
    };
    if (m_columns.isNumeric() ? m_numberSort.runPart(numberLess) : m_textSort.runPart(textLess))
        return true;
    m_phase = Phase::Gather;
    m_sorted.reserve(m_rows.size());
    return true;
}

bool RowsJob::gatherPart()
{
    const std::size_t stop = std::min(m_rows.size(), m_sorted.size() + rowsPerPart);
    const std::size_t ordered = m_rows.size() - m_last.size();
    while (m_sorted.size() < stop) {
        const std::size_t place = m_sorted.size();
        if (place >= ordered)
            m_sorted.push_back(m_last[place - ordered]);
        else if (m_columns.isNumeric())
            m_sorted.push_back(m_numberSort.items()[place].row);
        else
            m_sorted.push_back(m_rows[static_cast<std::size_t>(m_textSort.items()[place])]);
    }
    if (stop < m_rows.size())
        return true;
    m_phase = Phase::Done;
    m_rows.swap(m_sorted);
    return false;
}
