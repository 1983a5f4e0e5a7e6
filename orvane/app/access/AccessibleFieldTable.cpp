#include "orvane/app/access/AccessibleFieldTable.h"

#include "orvane/app/access/AccessibleFieldCell.h"
#include "orvane/app/access/AccessibleTitle.h"
#include "orvane/app/fields/FieldTableView.h"

#include <QHeaderView>
#include <QItemSelectionModel>

#include <algorithm>

AccessibleFieldTable::AccessibleFieldTable(FieldTableView* view)
    : QAccessibleWidget(view, QAccessible::Tree)
    , m_view(view)
{
}

AccessibleFieldTable::~AccessibleFieldTable()
{
    for (const QAccessible::Id id : std::as_const(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    for (const QAccessible::Id id : m_titles)
        QAccessible::deleteAccessibleInterface(id);
}

int AccessibleFieldTable::columnCount() const
{
    // There may be no model yet.
    return m_view->model() != nullptr ? m_view->model()->columnCount() : 0;
}

int AccessibleFieldTable::rowCount() const
{
    if (m_view->model() == nullptr)
        return 0;
    const QAbstractItemModel& model = *m_view->model();
    int rows = 0;
    for (int group = 0; group < model.rowCount(); ++group) {
        const QModelIndex index = model.index(group, 0);
        rows += 1 + (m_view->isExpanded(index) ? model.rowCount(index) : 0);
    }
    return rows;
}

QModelIndex AccessibleFieldTable::indexAt(int row, int column) const
{
    if (m_view->model() == nullptr)
        return {};
    const QAbstractItemModel& model = *m_view->model();
    int rest = row;
    for (int group = 0; rest >= 0 && group < model.rowCount(); ++group) {
        const QModelIndex index = model.index(group, 0);
        if (rest == 0)
            return index.siblingAtColumn(column);
        const int rows = m_view->isExpanded(index) ? model.rowCount(index) : 0;
        if (rest <= rows)
            return model.index(rest - 1, column, index);
        rest -= rows + 1;
    }
    return {};
}

int AccessibleFieldTable::rowOf(const QModelIndex& index) const
{
    const QAbstractItemModel& model = *m_view->model();
    const QModelIndex group = index.parent().isValid() ? index.parent() : index.siblingAtColumn(0);
    if (!index.isValid() || (index.parent().isValid() && !m_view->isExpanded(group)))
        return -1;
    int row = 0;
    for (int before = 0; before < group.row(); ++before) {
        const QModelIndex each = model.index(before, 0);
        row += 1 + (m_view->isExpanded(each) ? model.rowCount(each) : 0);
    }
    return index.parent().isValid() ? row + 1 + index.row() : row;
}

QAccessibleInterface* AccessibleFieldTable::cell(const QModelIndex& index) const
{
    if (!index.isValid())
        return nullptr;
    const auto known = m_cells.constFind(QPersistentModelIndex(index));
    if (known != m_cells.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto* const made = new AccessibleFieldCell(*m_view, index);
    m_cells.insert(QPersistentModelIndex(index), QAccessible::registerAccessibleInterface(made));
    return made;
}

QAccessibleInterface* AccessibleFieldTable::cellAt(int row, int column) const
{
    return cell(indexAt(row, column));
}

QAccessibleInterface* AccessibleFieldTable::title(int column) const
{
    if (column < 0 || column >= columnCount())
        return nullptr;
    while (static_cast<int>(m_titles.size()) <= column) {
        auto* const made = new AccessibleTitle(*m_view, static_cast<int>(m_titles.size()));
        m_titles.push_back(QAccessible::registerAccessibleInterface(made));
    }
    return QAccessible::accessibleInterface(m_titles[static_cast<std::size_t>(column)]);
}

// The views announce the current row by its number in this order: the titles, then row by row.
QAccessibleInterface* AccessibleFieldTable::child(int index) const
{
    const int columns = columnCount();
    if (index < 0 || columns == 0)
        return nullptr;
    return index < columns ? title(index) : cellAt(index / columns - 1, index % columns);
}

int AccessibleFieldTable::childCount() const
{
    return (rowCount() + 1) * columnCount();
}

int AccessibleFieldTable::indexOfChild(const QAccessibleInterface* child) const
{
    const int columns = columnCount();
    for (int column = 0; column < static_cast<int>(m_titles.size()); ++column) {
        if (QAccessible::accessibleInterface(m_titles[static_cast<std::size_t>(column)]) == child)
            return column;
    }
    const auto* const item = dynamic_cast<const AccessibleFieldCell*>(child);
    const int row = item != nullptr ? rowOf(item->part().index()) : -1;
    return row < 0 ? -1 : (row + 1) * columns + item->part().index().column();
}

QAccessibleInterface* AccessibleFieldTable::childAt(int x, int y) const
{
    const QPoint place = m_view->viewport()->mapFromGlobal(QPoint(x, y));
    if (!m_view->viewport()->rect().contains(place))
        return QAccessibleWidget::childAt(x, y);
    return cell(m_view->indexAt(place));
}

QAccessibleInterface* AccessibleFieldTable::focusChild() const
{
    return cell(m_view->currentIndex());
}

void* AccessibleFieldTable::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleFieldTable::columnDescription(int column) const
{
    const QAccessibleInterface* const shown = title(column);
    return shown != nullptr ? shown->text(QAccessible::Name) : QString();
}

QString AccessibleFieldTable::rowDescription(int row) const
{
    return indexAt(row, 0).data().toString();
}

QList<int> AccessibleFieldTable::selectedRows() const
{
    QList<int> rows;
    if (m_view->selectionModel() == nullptr)
        return rows;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows()) {
        if (const int row = rowOf(index); row >= 0)
            rows.append(row);
    }
    return rows;
}

int AccessibleFieldTable::selectedRowCount() const
{
    return static_cast<int>(selectedRows().size());
}

QList<QAccessibleInterface*> AccessibleFieldTable::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    const QList<int> rows = selectedRows();
    cells.reserve(rows.size() * columnCount());
    for (const int row : rows) {
        for (int column = 0; column < columnCount(); ++column)
            cells.append(cellAt(row, column));
    }
    return cells;
}

int AccessibleFieldTable::selectedCellCount() const
{
    return selectedRowCount() * columnCount();
}

bool AccessibleFieldTable::isColumnSelected(int /*column*/) const
{
    return false;
}

bool AccessibleFieldTable::isRowSelected(int row) const
{
    const QModelIndex index = indexAt(row, 0);
    return index.isValid() && m_view->selectionModel()->isSelected(index);
}

bool AccessibleFieldTable::selectRow(int row)
{
    const QModelIndex index = indexAt(row, 0);
    if (index.isValid())
        m_view->setCurrentIndex(index);
    return index.isValid();
}

bool AccessibleFieldTable::selectColumn(int /*column*/)
{
    return false;
}

bool AccessibleFieldTable::unselectRow(int /*row*/)
{
    return false;
}

bool AccessibleFieldTable::unselectColumn(int /*column*/)
{
    return false;
}

void AccessibleFieldTable::modelChange(QAccessibleTableModelChangeEvent* event)
{
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged) {
        forgetLostCells();
        return;
    }
    const QHash<QPersistentModelIndex, QAccessible::Id> cells = m_cells; // who is told may ask for more
    for (auto each = cells.cbegin(); each != cells.cend(); ++each) {
        QAccessibleInterface* const changed = each.key().isValid() ? QAccessible::accessibleInterface(*each) : nullptr;
        if (changed == nullptr || changed->valueInterface() == nullptr)
            continue;
        QAccessibleValueChangeEvent told(changed, changed->valueInterface()->currentValue());
        QAccessible::updateAccessibility(&told);
    }
}

void AccessibleFieldTable::forgetLostCells()
{
    for (auto each = m_cells.begin(); each != m_cells.end();) {
        if (each.key().isValid()) {
            ++each;
            continue;
        }
        QAccessible::deleteAccessibleInterface(*each);
        each = m_cells.erase(each);
    }
}
