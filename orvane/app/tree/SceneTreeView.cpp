#include "orvane/app/tree/SceneTreeView.h"

#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/selection/RowSelection.h"

#include <QKeyEvent>
#include <QMouseEvent>

void SceneTreeView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    m_rowSelection = new RowSelection(model, this);
}

// Other rows may have come in sight.
void SceneTreeView::paintEvent(QPaintEvent* event)
{
    m_rowSelection->update();
    QTreeView::paintEvent(event);
}

// An eye is a button: a click on it selects nothing.
bool SceneTreeView::clickEye(const QMouseEvent& event)
{
    const QModelIndex index = indexAt(event.position().toPoint());
    if (event.button() != Qt::LeftButton || index.column() != SceneTreeModel::ShownColumn
        || !index.data(SceneTreeModel::HasEyeRole).toBool())
        return false;
    Q_EMIT eyeClicked(index.siblingAtColumn(SceneTreeModel::NameColumn));
    return true;
}

// Qt would unfold any number of rows.
void SceneTreeView::keyPressEvent(QKeyEvent* event)
{
    m_rowSelection->update();
    if (event->key() == Qt::Key_Asterisk)
        Q_EMIT unfoldRequested();
    else
        QTreeView::keyPressEvent(event);
}

void SceneTreeView::mousePressEvent(QMouseEvent* event)
{
    m_rowSelection->update();
    if (!clickEye(*event))
        QTreeView::mousePressEvent(event);
}

// The second press of two quick ones.
void SceneTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!clickEye(*event))
        QTreeView::mouseDoubleClickEvent(event);
}

void SceneTreeView::startDrag(Qt::DropActions)
{
    Q_EMIT dragStarted();
}

// Qt selects another row by itself only where a single one can be selected.
void SceneTreeView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    if (isSelectionWithin(parent, start, end)) {
        const int next = end + 1 < model()->rowCount(parent) ? end + 1 : start - 1;
        if (next >= 0)
            setCurrentIndex(model()->index(next, 0, parent));
    }
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

// Rows that are selected apart from each other may be removed one after the other: only the last of them counts.
bool SceneTreeView::isSelectionWithin(const QModelIndex& parent, int start, int end) const
{
    const QItemSelection& selection = m_rowSelection->allRanges();
    if (selection.size() != 1)
        return false;
    const QItemSelectionRange& range = selection.constFirst();
    if (range.parent() == parent)
        return range.top() >= start && range.bottom() <= end;
    QModelIndex above = range.parent();
    while (above.isValid() && above.parent() != parent)
        above = above.parent();
    return above.isValid() && above.row() >= start && above.row() <= end;
}
