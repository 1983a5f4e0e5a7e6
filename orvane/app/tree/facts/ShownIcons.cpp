#include "orvane/app/tree/facts/ShownIcons.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

namespace orvane {
namespace {

constexpr qreal units = 16; // on which the icons are drawn
constexpr qreal lineWidth = 1.5;

void drawEyeOnUnits(QPainter& painter, const QColor& color, bool isOpen)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    QPainterPath lids(QPointF(2, 8));
    if (isOpen) {
        lids.quadTo(8, 1.5, 14, 8);
        lids.quadTo(8, 14.5, 2, 8);
        painter.drawPath(lids);
        painter.setBrush(color);
        painter.drawEllipse(QPointF(8, 8), 1.6, 1.6);
        return;
    }
    lids.quadTo(8, 13, 14, 8);
    painter.drawPath(lids);
    painter.drawLine(QPointF(4, 10.5), QPointF(3, 12.5));
    painter.drawLine(QPointF(8, 11), QPointF(8, 13.5));
    painter.drawLine(QPointF(12, 10.5), QPointF(13, 12.5));
}

} // namespace

void drawEye(QPainter& painter, const QRect& place, const QColor& color, bool isOpen)
{
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / units, place.height() / units);
    drawEyeOnUnits(painter, color, isOpen);
    painter.restore();
}

} // namespace orvane
