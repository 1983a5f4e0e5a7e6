#include "meridane/gl/geometry/PictureProjection.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"

namespace meridane {

PictureProjection::PictureProjection(const NxViewpoint& viewpoint, double width, double height)
    : m_eye(viewpoint.usablePosition())
    , m_right(normalized(VbVec3d(viewpoint.rightAxis()), VbVec3d(1, 0, 0)))
    , m_up(normalized(VbVec3d(viewpoint.upAxis()), VbVec3d(0, 1, 0)))
    , m_ahead(normalized(VbVec3d(viewpoint.viewDirection()), VbVec3d(0, 0, -1)))
    , m_width(width)
    , m_height(height)
    , m_unitHeight(static_cast<double>(viewpoint.heightAt(1)))
    , m_isPerspective(viewpoint.projection == NxViewpoint::PERSPECTIVE)
{
}

std::optional<PicturePlace> PictureProjection::placeOf(const VbVec3d& point) const
{
    const VbVec3d way = subtract(point, m_eye);
    const double depth = dot(way, m_ahead);
    if (m_isPerspective && !(depth > 0))
        return {};
    const double pointsPerUnit = m_height / (m_unitHeight * (m_isPerspective ? depth : 1));
    return PicturePlace{m_width / 2 + dot(way, m_right) * pointsPerUnit, m_height / 2 - dot(way, m_up) * pointsPerUnit};
}

SightLine PictureProjection::lineAt(const PicturePlace& place) const
{
    const double unitsPerPoint = m_unitHeight / m_height;
    const VbVec3d across = add(scaled(m_right, (place[0] - m_width / 2) * unitsPerPoint),
        scaled(m_up, (m_height / 2 - place[1]) * unitsPerPoint));
    if (!m_isPerspective)
        return {add(m_eye, across), m_ahead};
    return {m_eye, normalized(add(m_ahead, across), m_ahead)};
}

double PictureProjection::unitsPerPoint(const VbVec3d& point) const
{
    return m_unitHeight / m_height * (m_isPerspective ? dot(subtract(point, m_eye), m_ahead) : 1);
}

VbVec3d PictureProjection::directionTo(const VbVec3d& point) const
{
    return m_isPerspective ? normalized(subtract(point, m_eye), m_ahead) : m_ahead;
}

} // namespace meridane
