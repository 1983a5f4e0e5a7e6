#include "orvane/app/actions/PickerDelegate.h"

#include "orvane/app/actions/PickerModel.h"
#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace {

constexpr int leastDetail = 8; // characters, else it is left out

/// Lays the text out with its matched letters in bold and underlined. The result is its width.
qreal layOut(QTextLayout& layout, const QList<int>& places)
{
    QList<QTextLayout::FormatRange> ranges;
    for (const int place : places) {
        if (!ranges.isEmpty() && ranges.back().start + ranges.back().length == place) {
            ++ranges.back().length;
            continue;
        }
        QTextLayout::FormatRange range;
        range.start = place;
        range.length = 1;
        range.format.setFontWeight(QFont::Bold);
        range.format.setFontUnderline(true);
        ranges.append(range);
    }
    layout.setFormats(ranges);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(1e6);
    layout.endLayout();
    return line.isValid() ? line.naturalTextWidth() : 0;
}

} // namespace

void PickerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto& model = static_cast<const PickerModel&>(*index.model());
    const PickerItem* const item = model.item(index);
    if (item == nullptr)
        return;
    QStyleOptionViewItem row = option;
    row.text.clear();
    const QWidget* const widget = option.widget;
    const QStyle* const style = widget != nullptr ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, widget);

    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette& palette = option.palette;
    const QColor back = palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor text = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor quiet = orvane::look::quietColor(text, back);
    const QFontMetrics metrics(option.font);
    const int unit = orvane::look::unit(metrics);
    const int side = orvane::look::iconSize(metrics);
    QRect room = option.rect.adjusted(2 * unit, 0, -2 * unit, 0);

    painter->save();
    painter->setClipRect(option.rect);
    painter->setFont(option.font);
    const QRect icon(room.left(), room.center().y() - side / 2, side, side);
    item->icon.paint(painter, icon, Qt::AlignCenter, item->reason.isEmpty() ? QIcon::Normal : QIcon::Disabled);
    room.setLeft(icon.right() + 2 * unit);
    painter->setPen(quiet);
    if (!item->keys.isEmpty()) {
        painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, item->keys);
        room.setRight(room.right() - metrics.horizontalAdvance(item->keys) - 4 * unit);
    }
    QTextLayout layout(item->text, option.font);
    const qreal width = layOut(layout, item->places);
    painter->setPen(item->reason.isEmpty() ? text : quiet);
    painter->save();
    painter->setClipRect(room.intersected(option.rect));
    const QPoint corner(room.left(), room.top() + (room.height() - metrics.height()) / 2);
    layout.draw(painter, QPointF(corner));
    painter->restore();
    room.setLeft(room.left() + static_cast<int>(width) + 4 * unit);
    const QString& detail = item->reason.isEmpty() ? item->detail : item->reason;
    if (room.width() > leastDetail * metrics.averageCharWidth()) {
        painter->setPen(quiet);
        painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            metrics.elidedText(detail, Qt::ElideMiddle, room.width()));
    }
    painter->restore();
}

QSize PickerDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const
{
    return {0, orvane::look::rowHeight(QFontMetrics(option.font))};
}
