#include "orvane/app/fields/FieldTableView.h"

#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

FieldTableView::FieldTableView(QWidget* parent)
    : QTreeView(parent)
{
    setObjectName(QStringLiteral("fieldTable"));
    orvane::followLanguage(this, [this] { setAccessibleName(tr("Fields")); });
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(EditKeyPressed); // a click or a typed character edits by the delegate of the values
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(true);
    setFrameShape(NoFrame);
    setTextElideMode(Qt::ElideRight);
    setIndentation(4 * orvane::look::unit(fontMetrics()));
    viewport()->setAttribute(Qt::WA_Hover);
    header()->setHighlightSections(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header()->setSectionsMovable(false);
}

bool FieldTableView::isGroup(const QModelIndex& index) const
{
    return index.isValid() && !index.parent().isValid();
}

void FieldTableView::editRow(const QModelIndex& index)
{
    const QModelIndex value = index.siblingAtColumn(FieldTableModel::ValueColumn);
    if (value.flags().testFlag(Qt::ItemIsEditable))
        edit(value, EditKeyPressed, nullptr);
    else if (index.isValid() && !isGroup(index))
        Q_EMIT openRequested(index);
}

void FieldTableView::mousePressEvent(QMouseEvent* event)
{
    const QPersistentModelIndex pressed = indexAt(event->pos());
    const bool chosenBefore = pressed.isValid() && selectionModel()->isRowSelected(pressed.row(), pressed.parent());
    QTreeView::mousePressEvent(event);
    if (chosenBefore && pressed.isValid())
        Q_EMIT currentPressed(pressed);
}

void FieldTableView::mouseMoveEvent(QMouseEvent* event)
{
    // The dock of the field's editor may appear at the press and move other rows under the pointer.
    if (event->buttons() == Qt::NoButton)
        QTreeView::mouseMoveEvent(event);
}

void FieldTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    QTreeView::mouseDoubleClickEvent(event);
    const bool isOpened = index.isValid() && !isGroup(index) && index.column() != FieldTableModel::MarkColumn
        && !index.siblingAtColumn(FieldTableModel::ValueColumn).flags().testFlag(Qt::ItemIsEditable);
    if (isOpened && event->button() == Qt::LeftButton)
        Q_EMIT openRequested(index);
}

void FieldTableView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (isReturn && modifiers == Qt::ControlModifier)
        Q_EMIT editorRequested();
    else if (current.isValid() && modifiers == Qt::NoModifier && (isReturn || event->key() == Qt::Key_F2))
        activateRow(current);
    else
        QTreeView::keyPressEvent(event);
}

void FieldTableView::activateRow(const QModelIndex& index)
{
    const QPersistentModelIndex activated(index);
    if (selectionModel()->isRowSelected(index.row(), index.parent()))
        Q_EMIT currentPressed(index);
    else
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (isGroup(activated))
        setExpanded(activated, !isExpanded(activated));
    else
        editRow(activated);
}

void FieldTableView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    const QModelIndex current = currentIndex();
    const QRect place = visualRect(current);
    // A dock with the field's editor may have appeared below and covered the place of the row.
    if (current.isValid() && place.isValid() && place.top() >= 0 && place.top() < event->oldSize().height())
        scrollTo(current);
}

void FieldTableView::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const
{
    if (!isGroup(index))
        return; // fields have no branches of their own
    painter->fillRect(rect, palette().color(QPalette::Window));
    QTreeView::drawBranches(painter, rect, index);
}
