#include "orvane/app/view/handles/HandlePainter.h"

#include "orvane/app/look/Look.h"

#include <QPainter>
#include <QPalette>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

const QColor handleBorder(0, 0, 0, 170);
const QColor handleMark(255, 235, 90);
const QColor handleCenter(240, 240, 240);

QColor colorOf(HandlePart part)
{
    const QColor dark(40, 40, 40);
    switch (axisOf(part)) {
    case 0:
        return orvane::look::markColor(orvane::look::Tint::AxisX, dark);
    case 1:
        return orvane::look::markColor(orvane::look::Tint::AxisY, dark);
    case 2:
        return orvane::look::markColor(orvane::look::Tint::AxisZ, dark);
    default:
        return handleCenter;
    }
}

QPolygonF polygonOf(const std::vector<meridane::PicturePlace>& places)
{
    QPolygonF polygon;
    for (const meridane::PicturePlace& place : places)
        polygon.append(QPointF(place[0], place[1]));
    return polygon;
}

/// The tip of an arm: an arrow of a move, a box of a scale.
QPolygonF tipOf(const QPolygonF& arm, HandleShape::Kind kind)
{
    constexpr double size = 5;
    const QPointF end = arm.back();
    if (kind == HandleShape::Kind::Scale)
        return QRectF(end - QPointF(size, size), QSizeF(2 * size, 2 * size));
    const QPointF way = end - arm.front();
    const double length = std::max(std::hypot(way.x(), way.y()), 1.0);
    const QPointF along = way / length;
    const QPointF across(-along.y(), along.x());
    return QPolygonF{end + along * 2 * size, end - along * size + across * size, end - along * size - across * size};
}

void paintArea(QPainter& painter, const QPolygonF& polygon, const QColor& color, bool isMarked)
{
    QColor fill = color;
    fill.setAlpha(isMarked ? 200 : 90);
    painter.setPen(QPen(handleBorder, 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(polygon);
    painter.setPen(QPen(color, 1));
    painter.setBrush(fill);
    painter.drawPolygon(polygon);
}

void paintLine(QPainter& painter, const QPolygonF& line, const QColor& color, bool isMarked)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(handleBorder, isMarked ? 6 : 4.5, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    painter.setPen(QPen(color, isMarked ? 3.5 : 2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(line);
}

} // namespace

namespace orvane {

void paintHandles(QPainter& painter, const HandleShape& shape, HandleShape::Kind kind, HandlePart marked)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const HandleShape::Piece& piece : shape.pieces()) {
        const bool isMarked = piece.part == marked;
        const QColor color = isMarked ? handleMark : colorOf(piece.part);
        const QPolygonF polygon = polygonOf(piece.places);
        if (piece.isArea) {
            paintArea(painter, polygon, color, isMarked);
            continue;
        }
        paintLine(painter, polygon, color, isMarked);
        if (kind != HandleShape::Kind::Turn) {
            painter.setPen(QPen(handleBorder, 1.5));
            painter.setBrush(color);
            painter.drawPolygon(tipOf(polygon, kind));
        }
    }
    painter.restore();
}

void paintHandleText(
    QPainter& painter, const QString& text, const QPointF& place, const QRect& area, const QPalette& palette)
{
    constexpr int away = 18;
    const int margin = look::unit(painter.fontMetrics());
    QRect box = painter.fontMetrics().boundingRect(text).adjusted(-2 * margin, -margin, 2 * margin, margin);
    box.moveTopLeft(place.toPoint() + QPoint(away, away));
    box.moveLeft(std::clamp(box.left(), area.left(), std::max(area.left(), area.right() - box.width())));
    box.moveTop(std::clamp(box.top(), area.top(), std::max(area.top(), area.bottom() - box.height())));
    painter.setPen(palette.color(QPalette::ToolTipText));
    painter.setBrush(palette.color(QPalette::ToolTipBase));
    painter.drawRect(box);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace orvane
