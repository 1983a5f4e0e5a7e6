#include "orvane/app/view/ViewNavigation.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr float notchFactor = 1.2F;
/// A drag across the height of the view goes half way round.
constexpr float orbitPerHeight = std::numbers::pi_v<float>;
constexpr float keyAngle = std::numbers::pi_v<float> / 36;
constexpr float keyPan = 0.05F;

} // namespace

ViewNavigation::ViewNavigation(NxViewpoint& viewpoint, PointFinder findPoint)
    : m_viewpoint(viewpoint)
    , m_findPoint(std::move(findPoint))
{
}

float ViewNavigation::aspect() const
{
    return static_cast<float>(std::max(m_size.width(), 1.0) / std::max(m_size.height(), 1.0));
}

VbVec2f ViewNavigation::place(const QPointF& position) const
{
    return {static_cast<float>(position.x() / std::max(m_size.width(), 1.0)),
        static_cast<float>(1.0 - position.y() / std::max(m_size.height(), 1.0))};
}

float ViewNavigation::distanceAt(const QPointF& position) const
{
    const std::optional<VbVec3d> point = m_findPoint(position);
    return point ? m_viewpoint.distanceTo(*point) : m_viewpoint.focalDistance;
}

void ViewNavigation::startDrag(Drag drag, const QPointF& position)
{
    m_drag = drag;
    m_last = position;
    m_pivot.reset();
    if (drag == Drag::Pan)
        m_panDistance = distanceAt(position);
}

void ViewNavigation::orbit(const QPointF& way)
{
    // Looked for with the first move: a click needs no pivot.
    if (!m_pivot) {
        m_pivot = m_orbitsPicked ? m_findPoint(m_last) : std::nullopt;
        if (m_pivot)
            m_viewpoint.focus(*m_pivot);
        else
            m_pivot = m_viewpoint.focalPoint();
    }
    // The scene goes with the pointer, so the viewer goes the other way round.
    const float perPixel = orbitPerHeight / static_cast<float>(std::max(m_size.height(), 1.0));
    m_viewpoint.orbit(-static_cast<float>(way.x()) * perPixel, static_cast<float>(way.y()) * perPixel, *m_pivot);
}

void ViewNavigation::drag(const QPointF& position)
{
    const QPointF way = position - m_last;
    if (m_drag == Drag::Orbit)
        orbit(way);
    else if (m_drag == Drag::Pan)
        m_viewpoint.pan(place(m_last), place(position), aspect(), m_panDistance);
    m_last = position;
}

void ViewNavigation::zoom(float notches, const QPointF& position)
{
    // A turn of the wheel is many events, which all zoom to the point that the first one found.
    if (!m_zoomPoint || m_zoomPosition != position || !(m_zoomed == m_viewpoint)) {
        m_zoomPoint = m_findPoint(position);
        if (m_zoomPoint)
            m_viewpoint.focus(*m_zoomPoint);
        else
            m_zoomPoint = m_viewpoint.pointAt(place(position), aspect(), m_viewpoint.focalDistance);
        m_zoomPosition = position;
    }
    m_viewpoint.zoom(std::pow(notchFactor, notches), *m_zoomPoint);
    m_zoomed = m_viewpoint;
}

bool ViewNavigation::pressKey(const QKeyEvent& event)
{
    const bool pans = event.modifiers().testFlag(Qt::ShiftModifier);
    const auto step = [&](float right, float up) {
        const VbVec2f middle(0.5F, 0.5F);
        if (pans)
            m_viewpoint.pan(
                middle, VbVec2f(0.5F - right * keyPan, 0.5F - up * keyPan), aspect(), m_viewpoint.focalDistance);
        else
            m_viewpoint.orbit(right * keyAngle, up * keyAngle);
    };
    switch (event.key()) {
    case Qt::Key_Left:
        step(-1, 0);
        return true;
    case Qt::Key_Right:
        step(1, 0);
        return true;
    case Qt::Key_Up:
        step(0, 1);
        return true;
    case Qt::Key_Down:
        step(0, -1);
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key as the plus, without Shift, on many keyboards
        m_viewpoint.zoom(notchFactor, m_viewpoint.focalPoint());
        return true;
    case Qt::Key_Minus:
        m_viewpoint.zoom(1 / notchFactor, m_viewpoint.focalPoint());
        return true;
    default:
        return false;
    }
}
