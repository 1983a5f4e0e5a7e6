#include "orvane/app/input/FoundTextDelegate.h"

#include "orvane/app/input/FoundText.h"
#include "orvane/app/input/PaintedText.h"
#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QPainter>

#include <utility>

FoundTextDelegate::FoundTextDelegate(meridane::SearchedText kind, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_kind(kind)
{
}

void FoundTextDelegate::setQuery(const meridane::Query& query)
{
    m_query = query;
}

bool FoundTextDelegate::isSearched(const QModelIndex& /*index*/) const
{
    return true;
}

FoundTextDelegate::ItemLook FoundTextDelegate::lookOf(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    ItemLook look;
    const QVariant font = index.data(Qt::FontRole);
    look.font = font.isValid() ? font.value<QFont>().resolve(option.font) : option.font;
    look.group = orvane::look::groupOf(option);
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    look.background = option.palette.color(look.group, isSelected ? QPalette::Highlight : QPalette::Base);
    look.text = option.palette.color(look.group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    if (const QVariant color = index.data(Qt::ForegroundRole); color.isValid() && !isSelected)
        look.text = color.value<QBrush>().color();
    return look;
}

// The style would lay out the text several times, and look for an icon and a check box, which there are none of.
void FoundTextDelegate::paintLine(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    QStyleOptionViewItem panel = option;
    panel.index = index;
    if (const QVariant brush = index.data(Qt::BackgroundRole); brush.isValid())
        panel.backgroundBrush = brush.value<QBrush>();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, painter, option.widget);
    const QString text = index.data().toString();
    if (text.isEmpty())
        return;
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    const ItemLook look = lookOf(option, index);
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    orvane::paintText(*painter, look.font, option.rect.adjusted(margin, 0, -margin, 0), text, look.text);
    painter->restore();
}

void FoundTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_query.isEmpty() || !isSearched(index)) {
        if (option.direction == Qt::LeftToRight)
            return paintLine(painter, option, index);
        return QStyledItemDelegate::paint(painter, option, index);
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QPalette::ColorGroup group = orvane::look::groupOf(item);
    const bool isSelected = (item.state & QStyle::State_Selected) != 0;
    const QColor background = item.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
    const orvane::FoundFormats formats = orvane::foundFormats(m_query, item.text, m_kind, background);
    if (formats.isEmpty())
        return QStyledItemDelegate::paint(painter, option, index);

    const QStyle* const style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
    const QRect area = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget);
    const QString text = std::exchange(item.text, QString());
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    painter->save();
    const QColor color = item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    orvane::paintFound(*painter, item.font, area.adjusted(margin, 0, -margin, 0), text, color, formats);
    painter->restore();
}
