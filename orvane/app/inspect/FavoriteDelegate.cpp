#include "orvane/app/inspect/FavoriteDelegate.h"

#include "orvane/app/fields/MarkIcons.h"
#include "orvane/app/inspect/FavoriteNodes.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/tree/SceneTreeModel.h"

#include <QPainter>
#include <QTreeView>

FavoriteDelegate::FavoriteDelegate(const FavoriteNodes& favorites, const SceneTreeModel& model, QTreeView* view)
    : NodeDelegate(view)
    , m_favorites(favorites)
    , m_model(model)
{
}

QList<FieldMark> FavoriteDelegate::marks(const QModelIndex& index) const
{
    QList<FieldMark> marks;
    if (m_favorites.contains(m_model.node(index)))
        marks.append(FieldMark::Favorite);
    if (index.data(SceneTreeModel::IgnoredRole).toBool())
        marks.append(FieldMark::Ignore);
    return marks;
}

int FavoriteDelegate::marksWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto count = static_cast<int>(marks(index).size());
    return count * (orvane::look::iconSize(option.fontMetrics) + orvane::look::unit(option.fontMetrics));
}

void FavoriteDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    NodeDelegate::paint(painter, option, index);
    if (index.column() != SceneTreeModel::NameColumn)
        return;
    const int side = orvane::look::iconSize(option.fontMetrics);
    QRect place(option.rect.right() - side, option.rect.center().y() - side / 2, side, side);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    for (const FieldMark mark : marks(index)) {
        orvane::drawMark(
            *painter, mark, place, option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text), true);
        place.translate(-side - orvane::look::unit(option.fontMetrics), 0);
    }
}
