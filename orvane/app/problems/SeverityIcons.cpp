#include "orvane/app/problems/SeverityIcons.h"

#include "orvane/app/base/DrawnIcon.h"
#include "orvane/app/look/Look.h"

#include <QPainter>
#include <QPalette>

namespace orvane {
namespace {

look::Tint tintOf(NxSeverity severity)
{
    switch (severity) {
    case NxSeverity::Information:
        return look::Tint::Information;
    case NxSeverity::Warning:
        return look::Tint::Warning;
    case NxSeverity::Error:
        break;
    }
    return look::Tint::Error;
}

void drawShape(QPainter& painter, NxSeverity severity)
{
    switch (severity) {
    case NxSeverity::Information:
        painter.drawEllipse(QPointF(8, 8), 6, 6);
        painter.drawLine(QPointF(8, 7.5), QPointF(8, 11));
        painter.drawPoint(QPointF(8, 5));
        break;
    case NxSeverity::Warning:
        painter.drawPolygon(QPolygonF{{8, 2.5}, {14, 13.5}, {2, 13.5}});
        painter.drawLine(QPointF(8, 6.5), QPointF(8, 9.5));
        painter.drawPoint(QPointF(8, 11.5));
        break;
    case NxSeverity::Error:
        painter.drawEllipse(QPointF(8, 8), 6, 6);
        painter.drawLine(QPointF(5.8, 5.8), QPointF(10.2, 10.2));
        painter.drawLine(QPointF(5.8, 10.2), QPointF(10.2, 5.8));
        break;
    }
}

} // namespace

QIcon severityIcon(NxSeverity severity, const QPalette& palette)
{
    return drawnIcon([severity, palette](QPainter& painter, QIcon::Mode mode) {
        constexpr double lineWidth = 1.5;
        const QColor background = palette.color(mode == QIcon::Selected ? QPalette::Highlight : QPalette::Base);
        painter.setPen(
            QPen(look::markColor(tintOf(severity), background), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        drawShape(painter, severity);
    });
}

} // namespace orvane
