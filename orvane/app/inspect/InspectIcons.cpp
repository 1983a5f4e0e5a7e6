#include "orvane/app/inspect/InspectIcons.h"

#include "orvane/app/base/DrawnIcon.h"
#include "orvane/app/fields/MarkIcons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace {

constexpr double strokeWidth = 1.5;

QColor inkOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
}

QPen penOf(QIcon::Mode mode)
{
    return {inkOf(mode), strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QIcon padlock(bool isOpen)
{
    return orvane::drawnIcon([isOpen](QPainter& painter, QIcon::Mode mode) {
        constexpr double shackleWidth = 5;
        const double shackleLeft = isOpen ? 9.5 : 5.5; // turned to the right, or in the middle
        painter.setPen(penOf(mode));
        QPainterPath shackle(QPointF(shackleLeft, 7.5));
        shackle.lineTo(shackleLeft, 5);
        shackle.arcTo(QRectF(shackleLeft, 2, shackleWidth, shackleWidth), 180, -180);
        shackle.lineTo(shackleLeft + shackleWidth, isOpen ? 5 : 7.5);
        painter.drawPath(shackle);
        painter.drawRoundedRect(QRectF(3, 7.5, 10, 6), 1, 1);
        painter.drawLine(QPointF(8, 10), QPointF(8, 11));
    });
}

QIcon arrow(bool toTheLeft)
{
    return orvane::drawnIcon([toTheLeft](QPainter& painter, QIcon::Mode mode) {
        if (!toTheLeft) {
            painter.translate(16, 0);
            painter.scale(-1, 1);
        }
        painter.setPen(penOf(mode));
        painter.drawLine(QPointF(3, 8), QPointF(13, 8));
        painter.drawPolyline(QPolygonF{{7.5, 3.5}, {3, 8}, {7.5, 12.5}});
    });
}

} // namespace

QIcon orvane::openPadlock()
{
    return padlock(true);
}

QIcon orvane::closedPadlock()
{
    return padlock(false);
}

QIcon orvane::starIcon()
{
    return drawnIcon([](QPainter& painter, QIcon::Mode mode) {
        drawMark(painter, FieldMark::Favorite, QRect(0, 0, 16, 16), inkOf(mode), false);
    });
}

QIcon orvane::backArrow()
{
    return arrow(true);
}

QIcon orvane::forwardArrow()
{
    return arrow(false);
}
