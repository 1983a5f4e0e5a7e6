#include "orvane/app/log/LogSearch.h"

#include "orvane/app/log/LogModel.h"

#include <algorithm>

LogSearch::LogSearch(const LogModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&model, &QAbstractItemModel::modelReset, this, &LogSearch::refill);
    connect(&model, &QAbstractItemModel::rowsInserted, this,
        [this](const QModelIndex&, int first, int last) { insert(first, last); });
    connect(&model, &QAbstractItemModel::rowsRemoved, this,
        [this](const QModelIndex&, int first, int last) { remove(first, last); });
}

void LogSearch::setText(const QString& text)
{
    m_text = text;
    refill();
}

bool LogSearch::contains(int row) const
{
    const LogRecord* const record = m_model.record(row);
    return record != nullptr && record->text.contains(m_text, Qt::CaseInsensitive);
}

void LogSearch::refill()
{
    m_hits.clear();
    m_count = 0;
    if (!m_text.isEmpty() && m_model.rowCount() > 0)
        insert(0, m_model.rowCount() - 1);
    else
        Q_EMIT changed();
}

void LogSearch::insert(int first, int last)
{
    if (m_text.isEmpty())
        return;
    std::deque<bool> hits;
    for (int row = first; row <= last; ++row) {
        hits.push_back(contains(row));
        m_count += hits.back() ? 1U : 0U;
    }
    m_hits.insert(m_hits.begin() + first, hits.begin(), hits.end());
    Q_EMIT changed();
}

void LogSearch::remove(int first, int last)
{
    if (m_text.isEmpty())
        return;
    const auto begin = m_hits.begin() + first;
    const auto end = m_hits.begin() + last + 1;
    m_count -= static_cast<std::size_t>(std::count(begin, end, true));
    m_hits.erase(begin, end);
    Q_EMIT changed();
}

bool LogSearch::isHit(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_hits.size() && m_hits[static_cast<std::size_t>(row)];
}

std::size_t LogSearch::hitsUpTo(int row) const
{
    const auto end = std::min(m_hits.size(), static_cast<std::size_t>(std::max(0, row + 1)));
    return static_cast<std::size_t>(
        std::count(m_hits.begin(), m_hits.begin() + static_cast<std::ptrdiff_t>(end), true));
}

int LogSearch::next(int row) const
{
    const int count = static_cast<int>(m_hits.size());
    for (int step = 1; step <= count && m_count > 0; ++step) {
        const int candidate = (std::max(row, -1) + step) % count;
        if (isHit(candidate))
            return candidate;
    }
    return -1;
}

int LogSearch::previous(int row) const
{
    const int count = static_cast<int>(m_hits.size());
    const int from = row < 0 ? count : row;
    for (int step = 1; step <= count && m_count > 0; ++step) {
        const int candidate = (from - step + count) % count;
        if (isHit(candidate))
            return candidate;
    }
    return -1;
}
