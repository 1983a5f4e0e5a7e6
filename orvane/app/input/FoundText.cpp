#include "orvane/app/input/FoundText.h"

#include "orvane/app/look/Look.h"

#include <QColor>
#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QTextOption>

#include <algorithm>

namespace {

qsizetype lengthOf(const std::string& text, std::size_t start, std::size_t length)
{
    return QString::fromUtf8(text.data() + start, static_cast<qsizetype>(length)).size();
}

// Highlights nothing in the ellipsis at the end of a text that was cut.
orvane::FoundFormats within(const orvane::FoundFormats& formats, qsizetype length)
{
    orvane::FoundFormats result;
    for (QTextLayout::FormatRange range : formats) {
        range.length = std::min(range.length, static_cast<int>(length) - range.start);
        if (range.length > 0)
            result.append(range);
    }
    return result;
}

} // namespace

QTextLayout::FormatRange orvane::foundFormat(int start, int length, const QColor& background)
{
    QTextLayout::FormatRange range{start, length, {}};
    range.format.setBackground(look::washColor(look::Tint::Warning, background));
    range.format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    range.format.setUnderlineColor(look::markColor(look::Tint::Warning, background));
    return range;
}

orvane::FoundFormats orvane::foundFormats(
    const meridane::Query& query, const QString& text, meridane::SearchedText kind, const QColor& background)
{
    FoundFormats formats;
    if (query.isEmpty())
        return formats;
    const std::string bytes = text.toStdString();
    for (const meridane::FoundPart& part : query.foundIn(bytes, kind)) {
        const qsizetype start = lengthOf(bytes, 0, part.start);
        const qsizetype length = lengthOf(bytes, part.start, part.length);
        formats.append(foundFormat(static_cast<int>(start), static_cast<int>(length), background));
    }
    return formats;
}

int orvane::paintFound(QPainter& painter, const QFont& font, const QRect& area, const QString& text,
    const QColor& color, const FoundFormats& formats)
{
    const QFontMetrics metrics(font);
    const QString shown = metrics.elidedText(text, Qt::ElideRight, area.width());
    QTextLayout layout(shown, font, painter.device());
    QTextOption option(Qt::AlignLeft | Qt::AlignVCenter);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(shown.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.setFormats(within(formats, shown == text ? shown.size() : shown.size() - 1));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(area.width());
    layout.endLayout();
    painter.setPen(QPen(color));
    const int above = (area.height() - metrics.height()) / 2;
    layout.draw(&painter, QPointF(area.left(), area.top() + above));
    return std::min(metrics.horizontalAdvance(shown), area.width());
}
