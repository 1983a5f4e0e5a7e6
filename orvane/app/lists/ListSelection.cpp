#include "orvane/app/lists/ListSelection.h"

#include "orvane/app/lists/rows/ListModel.h"

ListSelection::ListSelection(ListModel& model, ListView* view)
    : QObject(view)
    , m_model(model)
    , m_view(view)
{
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &ListSelection::remember);
    connect(&model, &QAbstractItemModel::modelReset, this, &ListSelection::restore);
    connect(&model, &ListModel::rowsSpliced, this, [this](const std::vector<RowSplice>& splices) {
        for (const RowSplice splice : splices) {
            m_rows = orvane::spliced(m_rows, splice.start, splice.removed, splice.inserted);
            m_current = orvane::spliced(m_current, splice.start, splice.removed, splice.inserted);
        }
    });
}

void ListSelection::remember()
{
    const QModelIndex current = m_view->currentIndex();
    m_list = m_model.list();
    m_isSelected = m_view->selectionModel()->hasSelection();
    m_rows = m_isSelected ? m_view->selectedListRows() : RowRuns();
    m_columns = m_view->selectedColumns();
    m_current = current.isValid() ? RowRuns{{m_model.listRow(current), 1}} : RowRuns();
    m_currentColumn = current.column();
}

void ListSelection::restore()
{
    if (m_list == nullptr || m_list != m_model.list())
        return;
    if (m_isSelected)
        m_view->selectListRows(m_rows, m_columns);
    const int place = m_current.empty() ? -1 : m_model.map().placeOf(m_current.front().first);
    if (place < 0)
        return;
    const QModelIndex index = m_model.index(place, m_currentColumn);
    m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view->scrollTo(index);
}
