#include "orvane/app/view/display/OverlayText.h"

#include "orvane/app/look/Look.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace orvane {

QSize plateSize(const QFontMetrics& metrics, const QStringList& lines)
{
    int width = 0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const int space = look::unit(metrics);
    return {width + 4 * space, static_cast<int>(lines.size()) * metrics.lineSpacing() + 2 * space};
}

void paintLines(QPainter& painter, const QPoint& corner, const QStringList& lines)
{
    if (lines.isEmpty())
        return;
    const QFontMetrics metrics = painter.fontMetrics();
    const int space = look::unit(metrics);
    constexpr QColor plate(0, 0, 0, 170);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    painter.drawRoundedRect(QRect(corner, plateSize(metrics, lines)), space, space);
    painter.setPen(Qt::white);
    int baseline = corner.y() + space + metrics.ascent();
    for (const QString& line : lines) {
        painter.drawText(corner.x() + 2 * space, baseline, line);
        baseline += metrics.lineSpacing();
    }
}

} // namespace orvane
