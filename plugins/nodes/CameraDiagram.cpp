#include "plugins/nodes/CameraDiagram.h"

#include "plugins/nodes/NumberText.h"

#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using meridane::effectiveField;

namespace nodes {

namespace {

constexpr int linesOfCamera = 6;

double valueOf(const NxSFFloat& field)
{
    return static_cast<double>(effectiveField(field).getValue());
}

} // namespace

CameraDiagram::CameraDiagram()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CameraDiagram::setCamera(const NxPerspectiveCamera& camera)
{
    m_near = valueOf(camera.nearDistance);
    m_far = valueOf(camera.farDistance);
    m_angle = valueOf(camera.heightAngle);
    m_height = 0;
    update();
}

void CameraDiagram::setCamera(const NxOrthographicCamera& camera)
{
    m_near = valueOf(camera.nearDistance);
    m_far = valueOf(camera.farDistance);
    m_angle = 0;
    m_height = valueOf(camera.height);
    update();
}

QSize CameraDiagram::sizeHint() const
{
    const int height = linesOfCamera * fontMetrics().height();
    return {2 * height, height};
}

void CameraDiagram::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor lines = palette().color(QPalette::WindowText);
    QColor inside = palette().color(QPalette::Highlight);
    constexpr int quiet = 70;
    inside.setAlpha(quiet);
    const double line = fontMetrics().height();
    const double middle = (height() - line) / 2;
    const double left = line;
    const double right = width() - line / 2;
    if (!(m_far > m_near) || !std::isfinite(m_far)) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
            tr("It sees nothing: farDistance must be more than nearDistance."));
        return;
    }
    // The angle is true where it fits; a near border that is close to the camera is drawn apart from it.
    constexpr double widest = 1.3;
    const double slope = m_angle > 0 ? std::tan(std::min(m_angle / 2, widest)) : 0;
    const double length = slope > 0 ? std::min(right - left, middle * 0.95 / slope) : right - left;
    const double nearPlace = left + std::max(length * std::clamp(m_near / m_far, 0.0, 1.0), line / 2);
    const double farPlace = std::max(left + length, nearPlace + 1);
    const auto halfAt = [&](double x) { return slope > 0 ? (x - left) * slope : middle * 0.6; };
    painter.setPen(Qt::NoPen);
    painter.setBrush(inside);
    painter.drawPolygon(QPolygonF{{nearPlace, middle - halfAt(nearPlace)}, {farPlace, middle - halfAt(farPlace)},
        {farPlace, middle + halfAt(farPlace)}, {nearPlace, middle + halfAt(nearPlace)}});
    painter.setPen(QPen(lines, 1.5));
    for (const double side : {-1.0, 1.0})
        painter.drawLine(QPointF(left, middle + side * (slope > 0 ? 0 : middle * 0.6)),
            QPointF(farPlace, middle + side * halfAt(farPlace)));
    for (const double x : {nearPlace, farPlace})
        painter.drawLine(QPointF(x, middle - halfAt(x)), QPointF(x, middle + halfAt(x)));
    painter.setBrush(lines);
    painter.drawEllipse(QPointF(left, middle), 3, 3);
    painter.drawText(
        rect(), Qt::AlignHCenter | Qt::AlignBottom, tr("from %1 to %2").arg(numberText(m_near), numberText(m_far)));
}

} // namespace nodes
