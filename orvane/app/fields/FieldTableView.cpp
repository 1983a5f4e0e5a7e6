#include "orvane/app/fields/FieldTableView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

FieldTableView::FieldTableView(QWidget* parent)
    : QTableView(parent)
{
    setObjectName(QStringLiteral("fieldTable"));
    setAccessibleName(tr("Fields"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false); // Tab goes on to the next widget
    setFrameShape(NoFrame);
    setTextElideMode(Qt::ElideRight);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void FieldTableView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex pressed = indexAt(event->pos());
    const bool chosenBefore = pressed.isValid() && selectionModel()->isRowSelected(pressed.row(), QModelIndex());
    QTableView::mousePressEvent(event);
    if (chosenBefore)
        Q_EMIT currentPressed(pressed);
}

void FieldTableView::mouseMoveEvent(QMouseEvent* event)
{
    // The dock of the field's editor may appear at the press and move other rows under the pointer.
    if (event->buttons() == Qt::NoButton)
        QTableView::mouseMoveEvent(event);
}

void FieldTableView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    if ((event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) || !current.isValid())
        QTableView::keyPressEvent(event);
    else if (selectionModel()->isRowSelected(current.row(), QModelIndex()))
        Q_EMIT currentPressed(current);
    else
        selectRow(current.row());
}

void FieldTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    const QModelIndex current = currentIndex();
    const int place = rowViewportPosition(current.row());
    // A dock with the field's editor may have appeared below and covered the place of the row.
    if (current.isValid() && place >= 0 && place < event->oldSize().height())
        scrollTo(current);
}
