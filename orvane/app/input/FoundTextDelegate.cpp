#include "orvane/app/input/FoundTextDelegate.h"

#include "orvane/app/input/FoundText.h"
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

void FoundTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_query.isEmpty() || !isSearched(index))
        return QStyledItemDelegate::paint(painter, option, index);
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
