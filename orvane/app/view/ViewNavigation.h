#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QPointF>
#include <QSizeF>

#include <functional>
#include <optional>

class QKeyEvent;

/// Moves a viewpoint as mouse, wheel and keys ask for it.
///
/// What is under the pointer when a drag or a zoom begins stays there: an orbit is about it, or about the focal point
/// where nothing is. Positions are those of the widget.
class ViewNavigation {
public:
    enum class Drag { None, Orbit, Pan };
    /// The point of the scene that is seen at a position, or nothing.
    using PointFinder = std::function<std::optional<VbVec3d>(const QPointF& position)>;

    /// The viewpoint outlives this.
    ViewNavigation(NxViewpoint& viewpoint, PointFinder findPoint);

    /// The widget's size.
    void setSize(const QSizeF& size) { m_size = size; }
    [[nodiscard]] float aspect() const;
    /// The place in the picture of a position.
    [[nodiscard]] VbVec2f place(const QPointF& position) const;

    /// Whether an orbit is about the point under the pointer, as at first, or always about the focal point.
    void setOrbitsPicked(bool picked) { m_orbitsPicked = picked; }

    void startDrag(Drag drag, const QPointF& position);
    void drag(const QPointF& position);
    void endDrag() { m_drag = Drag::None; }
    [[nodiscard]] Drag dragUnderWay() const noexcept { return m_drag; }

    /// Zooms by so many notches of a wheel, upwards to look closer.
    void zoom(float notches, const QPointF& position);
    /// False for a key that doesn't move anything.
    bool pressKey(const QKeyEvent& event);

private:
    [[nodiscard]] float distanceAt(const QPointF& position) const;
    void orbit(const QPointF& way);

    NxViewpoint& m_viewpoint;
    PointFinder m_findPoint;
    QSizeF m_size{1, 1};
    Drag m_drag = Drag::None;
    QPointF m_last;
    float m_panDistance = 0;
    bool m_orbitsPicked = true;
    std::optional<VbVec3d> m_pivot; // of the orbit under way
    std::optional<VbVec3d> m_zoomPoint; // what the latest zoom went to
    QPointF m_zoomPosition; // where it was found
    NxViewpoint m_zoomed; // what the latest zoom led to
};
