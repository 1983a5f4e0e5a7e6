#include "orvane/app/tree/SceneTreeView.h"

#include <QItemSelectionModel>

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
    const QItemSelection selection = selectionModel()->selection();
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
