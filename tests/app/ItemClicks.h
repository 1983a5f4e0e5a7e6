#pragma once

#include <QAbstractItemView>
#include <QTest>

/// How tests work the rows of a view.
namespace ItemClicks {

/// Clicks on an item as a user does, who has to see it first.
inline void click(QAbstractItemView* view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = {},
    Qt::MouseButton button = Qt::LeftButton)
{
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), button, modifiers, view->visualRect(index).center());
}

/// The first item of a tree with that text, unfolded or not; invalid if there is none.
inline QModelIndex find(const QAbstractItemView* view, const QString& text)
{
    const QAbstractItemModel& model = *view->model();
    return model.match(model.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

} // namespace ItemClicks
