#include "orvane/app/fields/popups/Swatch.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace orvane {

void paintChecks(QPainter& painter, const QRect& area)
{
    painter.fillRect(area, Qt::white);
    const int side = std::max(2, area.height() / 3);
    for (int top = 0; top < area.height(); top += side) {
        for (int left = (top / side % 2) * side; left < area.width(); left += 2 * side)
            painter.fillRect(QRect(area.left() + left, area.top() + top, side, side) & area, Qt::lightGray);
    }
}

void paintSwatch(QPainter& painter, const QRect& area, const ColorNumbers& color, const QPalette& palette)
{
    const QColor shown = shownColor(color);
    QColor opaque = shown;
    opaque.setAlpha(255);
    painter.fillRect(area, opaque);
    if (shown.alpha() < 255) {
        const QRect right = area.adjusted(area.width() / 2, 0, 0, 0);
        paintChecks(painter, right);
        painter.fillRect(right, shown);
    }
    painter.setPen(palette.color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

} // namespace orvane
