#include "orvane/app/log/LogDelegate.h"

#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QTextOption>

namespace {

QRect textArea(const QStyleOptionViewItem& option)
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    return option.rect.adjusted(margin, 0, -margin, 0);
}

} // namespace

LogDelegate::LogDelegate(LogLinks& links, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_links(links)
{
}

void LogDelegate::setSearch(const QString& text)
{
    m_search = text;
}

orvane::FoundFormats LogDelegate::formatsOf(const QString& text, const QColor& background) const
{
    orvane::FoundFormats formats;
    for (const LogLink& link : m_links.of(text)) {
        QTextLayout::FormatRange range{link.start, link.length, {}};
        range.format.setForeground(orvane::look::textColor(orvane::look::Tint::Information, background));
        range.format.setFontUnderline(true);
        formats.append(range);
    }
    if (m_search.isEmpty())
        return formats;
    qsizetype start = text.indexOf(m_search, 0, Qt::CaseInsensitive);
    while (start >= 0) {
        formats.append(orvane::foundFormat(static_cast<int>(start), static_cast<int>(m_search.size()), background));
        start = text.indexOf(m_search, start + m_search.size(), Qt::CaseInsensitive);
    }
    return formats;
}

void LogDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QPalette::ColorGroup group = orvane::look::groupOf(item);
    const bool isSelected = (item.state & QStyle::State_Selected) != 0;
    const QColor background = item.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor color = item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QString text = item.text;
    item.text.clear();
    const QStyle* const style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    orvane::paintFound(*painter, item.font, textArea(item), text, color, formatsOf(text, background));
    painter->restore();
}

std::optional<LogLink> LogDelegate::linkAt(
    const QStyleOptionViewItem& option, const QModelIndex& index, const QPoint& place) const
{
    const QString text = index.data().toString();
    const LogLinks::Links& links = m_links.of(text);
    const QRect area = textArea(option);
    if (links.isEmpty() || !area.contains(place))
        return std::nullopt;
    const QString shown = QFontMetrics(option.font).elidedText(text, Qt::ElideRight, area.width());
    QTextLayout layout(shown, option.font);
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(area.width());
    layout.endLayout();
    const int x = place.x() - area.left();
    if (x > line.naturalTextWidth())
        return std::nullopt;
    const int position = line.xToCursor(x, QTextLine::CursorOnCharacter);
    for (const LogLink& link : links) {
        if (position >= link.start && position < link.start + link.length)
            return link;
    }
    return std::nullopt;
}
