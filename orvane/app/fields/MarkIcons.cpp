#include "orvane/app/fields/MarkIcons.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace {

constexpr qreal units = 16; // on which the icons are drawn
constexpr qreal lineWidth = 1.5;
constexpr QPointF middle(8, 8);

QPainterPath star()
{
    constexpr int corners = 10;
    constexpr qreal outer = 6;
    constexpr qreal inner = 2.6;
    QPainterPath path;
    for (int corner = 0; corner < corners; ++corner) {
        const qreal angle = std::numbers::pi * 2 * corner / corners;
        const qreal radius = corner % 2 == 0 ? outer : inner;
        const QPointF point = middle + QPointF(std::sin(angle), -std::cos(angle)) * radius;
        corner == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

/// An arrow that turns back.
QPainterPath resetArrow()
{
    QPainterPath path(QPointF(3.5, 6.5));
    path.lineTo(9.5, 6.5);
    path.arcTo(QRectF(6.25, 6.5, 6.5, 6.5), 90, -180);
    path.lineTo(6, 13);
    path.moveTo(6.5, 3.5);
    path.lineTo(3.5, 6.5);
    path.lineTo(6.5, 9.5);
    return path;
}

/// A circle with a bar.
QPainterPath ignoreSign()
{
    QPainterPath path;
    path.addEllipse(middle, 5, 5);
    path.moveTo(4.5, 11.5);
    path.lineTo(11.5, 4.5);
    return path;
}

} // namespace

void orvane::drawMark(QPainter& painter, FieldMark mark, const QRect& place, const QColor& color, bool isOn)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / units, place.height() / units);
    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (mark) {
    case FieldMark::Ignore:
        painter.drawPath(ignoreSign());
        break;
    case FieldMark::Favorite:
        if (isOn)
            painter.setBrush(color);
        painter.drawPath(star());
        break;
    case FieldMark::Reset:
        painter.drawPath(resetArrow());
        break;
    }
    painter.restore();
}
