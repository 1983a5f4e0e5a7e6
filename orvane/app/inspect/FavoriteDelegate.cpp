#include "orvane/app/inspect/FavoriteDelegate.h"

#include "orvane/app/fields/MarkIcons.h"
#include "orvane/app/inspect/FavoriteNodes.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/tree/SceneTreeModel.h"

#include <QPainter>

FavoriteDelegate::FavoriteDelegate(const FavoriteNodes& favorites, const SceneTreeModel& model, QObject* parent)
    : NodeDelegate(parent)
    , m_favorites(favorites)
    , m_model(model)
{
}

bool FavoriteDelegate::isFavorite(const QModelIndex& index) const
{
    return m_favorites.contains(m_model.node(index));
}

void FavoriteDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    NodeDelegate::initStyleOption(option, index);
    if (!isFavorite(index))
        return;
    // The text ends before the star.
    const int star = orvane::look::iconSize(option->fontMetrics);
    const int margins = 4 * orvane::look::unit(option->fontMetrics);
    option->text = option->fontMetrics.elidedText(
        option->text, option->textElideMode, option->rect.width() - option->decorationSize.width() - star - margins);
}

void FavoriteDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    NodeDelegate::paint(painter, option, index);
    if (!isFavorite(index))
        return;
    const int side = orvane::look::iconSize(option.fontMetrics);
    const QRect place(option.rect.right() - side, option.rect.center().y() - side / 2, side, side);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    orvane::drawMark(*painter, FieldMark::Favorite, place,
        option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text), true);
}
