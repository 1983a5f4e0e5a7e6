#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include "FieldEditors/DvSlider.h"
#include "FieldEditors/MFWidgets/AccessButtonPrivate.h"
#include "FieldEditors/MFWidgets/DvMFieldTableItemDelegate.h"
#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "FieldEditors/OrvMFAddRowsCommand.h"
#include "FieldEditors/OrvMFDeleteRowsCommand.h"
#include "FieldEditors/OrvMFSwapRowsCommand.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/MemoryGuard.h"

#include <QCursor>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include <cstddef>
#include <cstdio>
#include <new>
#include <utility>

DvMFieldTable::DvMFieldTable(DvMFieldWidget* owner, QWidget* parent, const char* name)
    : QTableWidget(parent)
    , m_owner(owner)
    , m_delegate(new DvMFieldTableItemDelegate(owner, this))
{
    setObjectName(QLatin1String(name != nullptr ? name : "DvMFieldTable"));
    setItemDelegate(m_delegate);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCurrentCell(0, 0);
    connect(model(), &QAbstractItemModel::dataChanged, this, &DvMFieldTable::noteItem);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { m_widthIsShared = false; });
}

DvMFieldTable::~DvMFieldTable()
{
    delete m_delegate;
}

void DvMFieldTable::setValueKind(int kind)
{
    m_delegate->setValueKind(kind);
}

void DvMFieldTable::setRealRange(double min, double max)
{
    m_delegate->setRealRange(min, max);
}

void DvMFieldTable::setRangeBounded(bool bounded)
{
    m_delegate->setRangeBounded(bounded);
}

void DvMFieldTable::setPlaceholder(int row, int column)
{
    // The table would neither show nor own an item for a cell that it doesn't have.
    if (row >= 0 && row < rowCount() && column >= 0 && column < columnCount())
        setItem(row, column, new QTableWidgetItem);
}

void DvMFieldTable::keyboardSearch(const QString& /*search*/) { }

void DvMFieldTable::setNumRows(int row)
{
    if (row < 0 || !hasRoomFor(row))
        return;
    AccessButtonPrivate* const box = m_owner->accessBox();
    box->setMinimum(row != 0 ? 1 : 0);
    box->setMaximum(row);
    setRowCount(row);
}

// The base class needs some words of memory for each row, and would abort in the middle of its work without them.
bool DvMFieldTable::hasRoomFor(int rows) const
{
    constexpr int manyRows = 100'000;
    if (rows - rowCount() < manyRows)
        return true;
    const std::size_t words = 2 * (static_cast<std::size_t>(columnCount()) + 2); // lists reserve more than they hold
    const std::size_t bytes = static_cast<std::size_t>(rows) * words * sizeof(void*);
    return meridane::withinMemory(bytes, [bytes] {
        ::operator delete(::operator new(bytes));
        return true;
    });
}

// Contract: the number of the access box, which counts rows from 1, is used as a row that is counted from 0. So 1 goes
// to the second row, and the highest number nowhere.
void DvMFieldTable::showTableRow(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    // Contract: a row without a placeholder leaves no cell current.
    QTableWidgetItem* const first = item(row, 0);
    scrollToItem(first, QAbstractItemView::EnsureVisible);
    setCurrentItem(first);
}

void DvMFieldTable::swapUpRow()
{
    const int row = m_owner->accessBox()->value() - 1;
    // Contract: printed each time, even if nothing is swapped.
    std::fprintf(stderr, "DvMFieldTable::swapUpRow() %d\n", row);
    if (row <= 0)
        return;
    commitOpenEditor();
    swapRows(row, row - 1);
    setCurrentCell(row - 1, 0);
    m_owner->accessBox()->setNewValue(row - 1);
}

void DvMFieldTable::swapDownRow()
{
    const int value = m_owner->accessBox()->value();
    const int row = value - 1;
    // Contract: printed each time, even if nothing is swapped.
    std::fprintf(stderr, "DvMFieldTable::swapDownRow() %d\n", row);
    if (row <= -1 || row >= rowCount() - 1)
        return;
    commitOpenEditor();
    swapRows(row, value);
    setCurrentCell(value, 0);
    m_owner->accessBox()->setNewValue(value);
}

void DvMFieldTable::swapRows(int row1, int row2)
{
    if (m_owner->field() == nullptr)
        return;
    OrvServices::getInstance()->pushCommand(new OrvMFSwapRowsCommand(m_owner->field(), row1, row2));
}

// New and removed rows are laid out first. Otherwise the cells would be painted twice, now and after the layout.
void DvMFieldTable::update()
{
    executeDelayedItemsLayout();
    viewport()->update();
}

void DvMFieldTable::addRow()
{
    if (m_owner->field() == nullptr)
        return;
    commitOpenEditor();
    const int current = currentRow();
    const int row = current + 1;
    clearPlaceholders();
    insertRow(row);
    for (int column = 0; column < columnCount(); ++column)
        setPlaceholder(row, column);
    AccessButtonPrivate* const box = m_owner->accessBox();
    const int maximum = box->maximum(); // read before the minimum is set, which would raise it
    box->setMinimum(1);
    box->setMaximum(maximum + 1);
    OrvServices::getInstance()->pushCommand(new OrvMFAddRowsCommand(m_owner->field(), row, 1));
    // Contract: the new row doesn't become current, and the table itself reports a change of the current cell.
    if (row < 1) {
        setCurrentCell(row, 0);
        Q_EMIT currentCellChanged(row, 0, 0, 0);
    } else {
        setCurrentCell(current, 0);
        Q_EMIT currentCellChanged(current, 0, row, 0);
    }
}

void DvMFieldTable::noteItem(const QModelIndex& index)
{
    if (item(index.row(), index.column()) != nullptr)
        m_itemPlaces.append(index);
}

// Like clearContents, but it visits only the cells that have an item. clearContents walks all cells and rebuilds the
// headers, which takes longer than inserting a row into a long list. This one also keeps the sizes of the headers.
void DvMFieldTable::clearPlaceholders()
{
    for (const QPersistentModelIndex& place : std::exchange(m_itemPlaces, {}))
        delete takeItem(place.row(), place.column());
    reset();
}

void DvMFieldTable::deleteRow()
{
    if (m_owner->field() == nullptr || rowCount() < 1)
        return;
    commitOpenEditor();
    if (m_multiRowMode) {
        deleteSelectedRows();
        return;
    }
    const int row = currentRow();
    if (row == -1)
        return;
    if (pushDeletion(row, 1))
        removeRow(row);
}

void DvMFieldTable::deleteSelectedRows()
{
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (ranges.isEmpty())
        return;
    const int top = ranges.constFirst().topRow(); // Contract: the other ranges stay.
    const int count = ranges.constFirst().bottomRow() - top + 1;
    if (pushDeletion(top, count))
        model()->removeRows(top, count, QModelIndex());
}

bool DvMFieldTable::pushDeletion(int row, int count)
{
    OrvMFDeleteRowsCommand* command = nullptr;
    const auto makeCommand = [this, &command, row, count] {
        command = new OrvMFDeleteRowsCommand(m_owner->field(), row, count);
        return true;
    };
    if (!meridane::withinMemory(static_cast<std::size_t>(count) * sizeof(VbString), makeCommand))
        return false; // what can't be saved isn't removed
    AccessButtonPrivate* const box = m_owner->accessBox();
    box->setMaximum(box->maximum() - count);
    OrvServices::getInstance()->pushCommand(command);
    if (rowCount() == 0)
        box->setMinimum(0);
    return true;
}

void DvMFieldTable::editorDestroyed(QObject* editor)
{
    if (editor == nullptr)
        return;
    if (const auto* const slider = qobject_cast<DvSlider*>(editor)) {
        const QLineEdit* const line = slider->edit();
        if (line->rect().contains(line->mapFromGlobal(QCursor::pos())) || line->hasFocus())
            return;
    }
    QAbstractItemView::editorDestroyed(editor);
}

void DvMFieldTable::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        addRow();
        break;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        deleteRow();
        break;
    case Qt::Key_Shift:
        setSelectionMode(QAbstractItemView::ContiguousSelection);
        m_multiRowMode = true;
        break;
    default:
        QAbstractItemView::keyPressEvent(event);
        break;
    }
    event->accept();
}

void DvMFieldTable::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift) {
        // Contract: after the first Shift nothing can be selected unless Shift is held.
        setSelectionMode(QAbstractItemView::NoSelection);
        m_multiRowMode = false;
    } else {
        QWidget::keyReleaseEvent(event);
    }
    event->accept();
}

void DvMFieldTable::hideEvent(QHideEvent* event)
{
    // Another field may be selected next, and the typed text belongs to this one.
    commitOpenEditor();
    QTableWidget::hideEvent(event);
}

void DvMFieldTable::resizeEvent(QResizeEvent* event)
{
    QTableWidget::resizeEvent(event);
    if (m_widthIsShared)
        shareWidth();
}

// Nothing scrolls sideways, so a column beyond the edge would be out of reach.
void DvMFieldTable::shareWidth()
{
    if (columnCount() == 0)
        return;
    horizontalHeader()->setDefaultSectionSize(viewport()->width() / columnCount());
    m_widthIsShared = true; // the header's signal came from here
}

// A change of rows would drop the typed text. An editor that loses the focus writes it.
void DvMFieldTable::commitOpenEditor()
{
    QWidget* const inCell = viewport()->focusWidget();
    if (state() != EditingState || inCell == nullptr)
        return;
    if (isVisible())
        setFocus();
    else
        inCell->clearFocus();
}
