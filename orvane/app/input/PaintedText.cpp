#include "orvane/app/input/PaintedText.h"

#include <QFontMetrics>
#include <QPainter>

int orvane::paintText(QPainter& painter, const QFont& font, const QRect& area, const QString& text, const QColor& color)
{
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text);
    const bool fits = width <= area.width();
    painter.setFont(font);
    painter.setPen(color);
    const QPoint start(area.left(), area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent());
    if (fits) {
        painter.drawText(start, text);
        return width;
    }
    // An ellipsis that doesn't fit is better than nothing, which would look like an empty value.
    const QString elided = metrics.elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(start, elided.isEmpty() ? QStringLiteral("…") : elided);
    return area.width();
}
