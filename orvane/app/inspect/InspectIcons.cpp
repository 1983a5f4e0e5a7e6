#include "orvane/app/inspect/InspectIcons.h"

#include "orvane/app/base/DrawnIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace {

constexpr double lineWidth = 1.5;

QColor inkOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
}

QPen penOf(QIcon::Mode mode)
{
    return {inkOf(mode), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// The shackle of an open padlock has turned to the right.
QIcon padlock(double shackleLeft)
{
    return orvane::drawnIcon([shackleLeft](QPainter& painter, QIcon::Mode mode) {
        constexpr double shackleWidth = 5;
        painter.setPen(penOf(mode));
        QPainterPath shackle(QPointF(shackleLeft, 7));
        shackle.lineTo(shackleLeft, 5);
        shackle.arcTo(QRectF(shackleLeft, 2, shackleWidth, shackleWidth), 180, -180);
        shackle.lineTo(shackleLeft + shackleWidth, 7);
        painter.setClipRect(QRectF(0, 0, 16, 8.5));
        painter.drawPath(shackle);
        painter.setClipping(false);
        painter.setBrush(inkOf(mode));
        painter.drawRoundedRect(QRectF(3, 7.5, 10, 6.5), 1, 1);
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
    constexpr double toTheRight = 8.5;
    return padlock(toTheRight);
}

QIcon orvane::closedPadlock()
{
    constexpr double inTheMiddle = 5.5;
    return padlock(inTheMiddle);
}

QIcon orvane::backArrow()
{
    return arrow(true);
}

QIcon orvane::forwardArrow()
{
    return arrow(false);
}
