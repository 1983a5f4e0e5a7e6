#include "orvane/app/view/display/OverlayText.h"

#include "orvane/app/look/Look.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace orvane {

int paintLines(QPainter& painter, const QPoint& corner, const QStringList& lines)
{
    if (lines.isEmpty())
        return 0;
    const QFontMetrics metrics = painter.fontMetrics();
    const int space = look::unit(metrics);
    int width = 0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const int height = static_cast<int>(lines.size()) * metrics.lineSpacing() + 2 * space;
    constexpr QColor plate(0, 0, 0, 170);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    painter.drawRoundedRect(QRect(corner, QSize(width + 4 * space, height)), space, space);
    painter.setPen(Qt::white);
    int baseline = corner.y() + space + metrics.ascent();
    for (const QString& line : lines) {
        painter.drawText(corner.x() + 2 * space, baseline, line);
        baseline += metrics.lineSpacing();
    }
    return height;
}

} // namespace orvane
