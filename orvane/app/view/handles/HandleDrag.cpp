#include "orvane/app/view/handles/HandleDrag.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace meridane;

namespace {

constexpr double radiansPerDegree = std::numbers::pi / 180;
constexpr double snapAngle = 15;
constexpr double snapFactor = 0.1;
/// The least distance of two snapped places, in points of the screen.
constexpr double snapPoints = 12;
/// A scale along all axes doubles over that distance.
constexpr double pointsPerDouble = 80;

double snapped(double value, double step)
{
    return std::round(value / step) * step;
}

} // namespace

HandleDrag::HandleDrag(Kind kind, HandlePart part, const HandleFrame& frame, const PictureProjection& projection,
    const PicturePlace& start)
    : m_kind(kind)
    , m_part(part)
    , m_frame(frame)
    , m_projection(projection)
    , m_start(start)
    , m_sight(projection.directionTo(frame.pivot))
    , m_normal(projection.ahead())
{
    const int number = axisOf(part);
    if (kind == Kind::Turn) {
        m_normal = number < 0 ? scaled(m_sight, -1) : axis(number);
        m_lastAngle = angleAt(start);
    } else if (part >= HandlePart::YZ && part <= HandlePart::XY) {
        m_normal = normalized(cross(axis((number + 1) % 3), axis((number + 2) % 3)), m_sight);
        m_startPoint = onPlane(start);
    } else if (number < 0) {
        m_startPoint = onPlane(start);
    } else {
        m_startAlong = alongAxis(start);
    }
}

VbVec3d HandleDrag::axis(int number) const
{
    return m_frame.axes[static_cast<std::size_t>(number)];
}

// The point of the axis that is nearest to the line of sight, as a distance from the pivot.
double HandleDrag::alongAxis(const PicturePlace& place) const
{
    const SightLine line = m_projection.lineAt(place);
    const VbVec3d direction = axis(axisOf(m_part));
    const VbVec3d way = subtract(m_frame.pivot, line.origin);
    const double cosine = dot(direction, line.direction);
    const double square = 1 - cosine * cosine;
    if (!(square > 1e-9))
        return 0;
    return (dot(way, line.direction) * cosine - dot(way, direction)) / square;
}

VbVec3d HandleDrag::onPlane(const PicturePlace& place) const
{
    const SightLine line = m_projection.lineAt(place);
    const double slope = dot(line.direction, m_normal);
    if (std::abs(slope) < 1e-9)
        return m_frame.pivot;
    const double distance = dot(subtract(m_frame.pivot, line.origin), m_normal) / slope;
    return add(line.origin, scaled(line.direction, distance));
}

// The angle about the axis of a turn, counter-clockwise when it points at the viewer.
double HandleDrag::angleAt(const PicturePlace& place) const
{
    const PicturePlace center = m_projection.placeOf(m_frame.pivot).value_or(m_start);
    if (std::abs(dot(m_normal, m_sight)) < HandleShape::flattest) {
        // Seen from its edge: the pointer goes along the ring, whose front moves like this.
        const VbVec3d way = cross(m_normal, scaled(m_sight, -1));
        const double right = dot(way, m_projection.right());
        const double down = -dot(way, m_projection.up());
        return ((place[0] - center[0]) * right + (place[1] - center[1]) * down) / HandleShape::armLength;
    }
    const VbVec3d first = normalized(cross(m_normal, m_projection.up()), m_projection.right());
    const VbVec3d across = length(cross(m_normal, m_projection.up())) > 1e-6 ? first : m_projection.right();
    const VbVec3d arm = subtract(onPlane(place), m_frame.pivot);
    return std::atan2(dot(arm, cross(m_normal, across)), dot(arm, across));
}

double HandleDrag::snapDistance() const
{
    const double least = m_projection.unitsPerPoint(m_frame.pivot) * snapPoints;
    const double zeros = std::pow(10, std::floor(std::log10(least)));
    for (const double digit : {1.0, 2.0, 5.0}) {
        if (digit * zeros >= least)
            return digit * zeros;
    }
    return 10 * zeros;
}

int HandleDrag::numberAxis() const
{
    if (m_kind == Kind::Move && m_part == HandlePart::Center)
        return 0;
    return m_part >= HandlePart::YZ && m_part <= HandlePart::XY ? (axisOf(m_part) + 1) % 3 : axisOf(m_part);
}

PlacementChange HandleDrag::changeAt(const PicturePlace& place, bool snaps)
{
    m_numbers = {};
    switch (m_kind) {
    case Kind::Move:
        return moveAt(place, snaps);
    case Kind::Turn:
        return turnAt(place, snaps);
    case Kind::Scale:
        return scaleAt(place, snaps);
    }
    return {};
}

PlacementChange HandleDrag::moveAt(const PicturePlace& place, bool snaps)
{
    const int number = axisOf(m_part);
    const double step = snapDistance();
    if (number >= 0 && m_part < HandlePart::YZ) {
        const double distance = alongAxis(place) - m_startAlong;
        m_numbers[static_cast<std::size_t>(number)] = snaps ? snapped(distance, step) : distance;
        return changeOf(m_numbers);
    }
    const VbVec3d way = subtract(onPlane(place), m_startPoint);
    Matrix4d fromAxes;
    for (std::size_t i = 0; i < 3; ++i)
        std::copy_n(m_frame.axes[i].getValue(), 3, fromAxes[i].begin());
    const VbVec3d along = transformVector(way, inverse(fromAxes).value_or(Matrix4d()));
    for (int i = 0; i < 3; ++i) {
        const auto index = static_cast<std::size_t>(i);
        if (i != number)
            m_numbers[index] = snaps ? snapped(along[index], step) : along[index];
    }
    return changeOf(m_numbers);
}

PlacementChange HandleDrag::turnAt(const PicturePlace& place, bool snaps)
{
    const double angle = angleAt(place);
    const double step = std::remainder(angle - m_lastAngle, 2 * std::numbers::pi);
    const bool isFlat = std::abs(dot(m_normal, m_sight)) < HandleShape::flattest;
    m_angle += isFlat ? angle - m_lastAngle : step;
    m_lastAngle = angle;
    const double degrees = m_angle / radiansPerDegree;
    const double shown = snaps ? snapped(degrees, snapAngle) : degrees;
    const int number = axisOf(m_part);
    if (number < 0) {
        m_numbers = {shown, shown, shown};
    } else {
        m_numbers[static_cast<std::size_t>(number)] = shown;
    }
    return changeOf(m_numbers);
}

PlacementChange HandleDrag::scaleAt(const PicturePlace& place, bool snaps)
{
    const int number = axisOf(m_part);
    double factor = 1;
    if (number < 0)
        factor = std::exp2((place[0] - m_start[0] - (place[1] - m_start[1])) / pointsPerDouble);
    else if (m_startAlong != 0)
        factor = alongAxis(place) / m_startAlong;
    // Nothing may be made flat: it could not be made larger again.
    if (snaps)
        factor = snapped(factor, snapFactor);
    if (factor == 0)
        factor = snapFactor;
    if (number < 0)
        m_numbers = {factor, factor, factor};
    else
        m_numbers[static_cast<std::size_t>(number)] = factor;
    return changeOf(m_numbers);
}

PlacementChange HandleDrag::changeOf(const Numbers& numbers)
{
    m_numbers = numbers;
    if (m_kind == Kind::Scale) {
        const VbVec3d factors(numbers[0].value_or(1), numbers[1].value_or(1), numbers[2].value_or(1));
        return PlacementChange::scale(m_frame.pivot, m_frame.axes, factors);
    }
    if (m_kind == Kind::Turn) {
        if (numbers[0] && numbers[1] && numbers[2])
            return PlacementChange::turn(m_frame.pivot, m_normal, *numbers[0] * radiansPerDegree);
        for (std::size_t i = 3; i-- > 0;) {
            if (numbers[i])
                return PlacementChange::turn(m_frame.pivot, m_frame.axes[i], *numbers[i] * radiansPerDegree);
        }
        return PlacementChange::turn(m_frame.pivot, m_normal, 0);
    }
    VbVec3d distance;
    for (std::size_t i = 0; i < 3; ++i)
        distance = add(distance, scaled(m_frame.axes[i], numbers[i].value_or(0)));
    return PlacementChange::move(distance);
}
