#include "orvane/app/tree/selection/RowSelection.h"

#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

RowSelection::RowSelection(QAbstractItemModel* model, QTreeView* view)
    : QItemSelectionModel(model, view)
    , m_view(view)
    , m_all(model, this)
{
    connect(&m_all, &QItemSelectionModel::selectionChanged, this, [this] {
        forgetRanges();
        Q_EMIT changed();
    });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, signal, this, &RowSelection::forgetRanges);
    connect(model, &QAbstractItemModel::rowsMoved, this, &RowSelection::forgetRanges);
    connect(model, &QAbstractItemModel::layoutChanged, this, &RowSelection::forgetRanges);
    connect(model, &QAbstractItemModel::modelReset, this, &RowSelection::forgetRanges);
    const QItemSelectionModel* const before = view->selectionModel();
    view->setSelectionModel(this);
    delete before;
}

void RowSelection::forgetRanges()
{
    m_ranges.reset();
    m_rows.reset();
}

const QItemSelection& RowSelection::allRanges() const
{
    if (!m_ranges)
        m_ranges = m_all.selection();
    return *m_ranges;
}

const RowSelection::RowsOfGroups& RowSelection::rows() const
{
    if (m_rows)
        return *m_rows;
    m_rows.emplace();
    const void* parent = nullptr;
    Rows* rows = nullptr;
    for (const QItemSelectionRange& range : allRanges()) {
        if (const void* const own = range.topLeft().internalPointer(); rows == nullptr || own != parent) {
            parent = own;
            rows = &(*m_rows)[parent];
        }
        rows->emplace_back(range.top(), range.bottom());
    }
    for (auto& [key, some] : *m_rows) {
        if (!std::ranges::is_sorted(some))
            std::ranges::sort(some);
    }
    return *m_rows;
}

bool RowSelection::contains(const QModelIndex& index) const
{
    if (!index.isValid())
        return false;
    const auto& known = rows();
    const auto found = known.find(index.internalPointer());
    if (found == known.end())
        return false;
    const auto behind = std::ranges::upper_bound(found->second, index.row(), {}, &std::pair<int, int>::first);
    return behind != found->second.begin() && index.row() <= std::prev(behind)->second;
}

void RowSelection::setRanges(const QItemSelection& ranges)
{
    {
        const QSignalBlocker blocker(&m_all);
        m_all.clearSelection(); // a change of many ranges to many others takes long
        m_all.select(ranges, QItemSelectionModel::Select);
    }
    forgetRanges();
    update();
    Q_EMIT changed();
}

void RowSelection::select(const QItemSelection& selection, SelectionFlags command)
{
    m_all.select(selection, command);
    update();
}

void RowSelection::clear()
{
    m_all.clearSelection();
    update();
    clearCurrentIndex();
}

void RowSelection::reset()
{
    m_all.reset();
    QItemSelectionModel::reset();
    forgetRanges();
}

void RowSelection::update()
{
    const QItemSelection& all = allRanges();
    const QItemSelection wanted = all.size() <= mostRanges ? all : rangesInSight();
    if (wanted != selection())
        QItemSelectionModel::select(wanted, ClearAndSelect);
}

QItemSelection RowSelection::rangesInSight() const
{
    QItemSelection ranges;
    const int bottom = m_view->viewport()->height();
    for (QModelIndex index = m_view->indexAt(QPoint(0, 0)); index.isValid(); index = m_view->indexBelow(index)) {
        if (m_view->visualRect(index).top() > bottom)
            break;
        if (contains(index)) {
            const int columns = model()->columnCount(index.parent());
            ranges.select(index.siblingAtColumn(0), index.siblingAtColumn(columns - 1));
        }
    }
    return ranges;
}
