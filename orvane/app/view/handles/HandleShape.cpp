#include "orvane/app/view/handles/HandleShape.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

using namespace meridane;

namespace {

/// How near to a line the pointer must be.
constexpr double reach = 7;
constexpr double centerSize = 8;
/// Of the arm's length: where the area of a plane begins, and how wide it is.
constexpr double planeStart = 0.3;
constexpr double planeSize = 0.22;
/// An arm that is seen shorter than that points at the viewer.
constexpr double shortestArm = 14;
constexpr int ringSteps = 72;

constexpr std::array lineParts{HandlePart::X, HandlePart::Y, HandlePart::Z};
constexpr std::array planeParts{HandlePart::YZ, HandlePart::ZX, HandlePart::XY};

double distanceToLine(const PicturePlace& place, const PicturePlace& from, const PicturePlace& to)
{
    const double x = to[0] - from[0];
    const double y = to[1] - from[1];
    const double square = x * x + y * y;
    const double along
        = square > 0 ? std::clamp(((place[0] - from[0]) * x + (place[1] - from[1]) * y) / square, 0.0, 1.0) : 0;
    return std::hypot(place[0] - from[0] - along * x, place[1] - from[1] - along * y);
}

bool isInside(const PicturePlace& place, const std::vector<PicturePlace>& corners)
{
    bool inside = false;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
        const PicturePlace& from = corners[i];
        const PicturePlace& to = corners[j];
        if ((from[1] > place[1]) != (to[1] > place[1])
            && place[0] < (to[0] - from[0]) * (place[1] - from[1]) / (to[1] - from[1]) + from[0])
            inside = !inside;
    }
    return inside;
}

double distanceTo(const HandleShape::Piece& piece, const PicturePlace& place)
{
    if (piece.isArea)
        return isInside(place, piece.places) ? 0 : std::numeric_limits<double>::infinity();
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < piece.places.size(); ++i)
        least = std::min(least, distanceToLine(place, piece.places[i - 1], piece.places[i]));
    return least;
}

} // namespace

int axisOf(HandlePart part)
{
    switch (part) {
    case HandlePart::X:
    case HandlePart::YZ:
        return 0;
    case HandlePart::Y:
    case HandlePart::ZX:
        return 1;
    case HandlePart::Z:
    case HandlePart::XY:
        return 2;
    case HandlePart::None:
    case HandlePart::Center:
        return -1;
    }
    return -1;
}

HandleShape::HandleShape(Kind kind, const HandleFrame& frame, const PictureProjection& projection)
{
    const std::optional<PicturePlace> center = projection.placeOf(frame.pivot);
    if (!center || !std::isfinite((*center)[0]) || !std::isfinite((*center)[1]))
        return;
    m_isSeen = true;
    m_center = *center;
    m_unit = projection.unitsPerPoint(frame.pivot) * armLength;
    if (kind == Kind::Turn) {
        addRings(frame, projection);
        return;
    }
    if (kind == Kind::Move)
        addPlanes(frame, projection);
    addArms(frame, projection);
    const auto corner = [&](double x, double y) { return PicturePlace{m_center[0] + x, m_center[1] + y}; };
    m_pieces.push_back({HandlePart::Center,
        {corner(-centerSize, -centerSize), corner(centerSize, -centerSize), corner(centerSize, centerSize),
            corner(-centerSize, centerSize)},
        true});
}

void HandleShape::addArms(const HandleFrame& frame, const PictureProjection& projection)
{
    std::array<std::size_t, 3> order{0, 1, 2};
    const VbVec3d sight = projection.directionTo(frame.pivot);
    std::sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return dot(frame.axes[left], sight) > dot(frame.axes[right], sight);
    });
    for (const std::size_t i : order) {
        const auto end = projection.placeOf(add(frame.pivot, scaled(frame.axes[i], m_unit)));
        if (end && std::hypot((*end)[0] - m_center[0], (*end)[1] - m_center[1]) >= shortestArm)
            m_pieces.push_back({lineParts[i], {m_center, *end}});
    }
}

void HandleShape::addPlanes(const HandleFrame& frame, const PictureProjection& projection)
{
    const VbVec3d sight = projection.directionTo(frame.pivot);
    for (std::size_t i = 0; i < 3; ++i) {
        const VbVec3d& first = frame.axes[(i + 1) % 3];
        const VbVec3d& second = frame.axes[(i + 2) % 3];
        if (std::abs(dot(normalized(cross(first, second), sight), sight)) < flattest)
            continue;
        Piece piece{planeParts[i], {}, true};
        for (const auto& [along, across] :
            {std::pair(0.0, 0.0), {planeSize, 0.0}, {planeSize, planeSize}, {0.0, planeSize}}) {
            const VbVec3d corner
                = add(scaled(first, (planeStart + along) * m_unit), scaled(second, (planeStart + across) * m_unit));
            if (const auto place = projection.placeOf(add(frame.pivot, corner)))
                piece.places.push_back(*place);
        }
        if (piece.places.size() == 4)
            m_pieces.push_back(std::move(piece));
    }
}

// Of each ring the half towards the viewer, and around all a ring in the plane of the picture.
void HandleShape::addRings(const HandleFrame& frame, const PictureProjection& projection)
{
    const VbVec3d sight = projection.directionTo(frame.pivot);
    const auto placeAt = [&](const VbVec3d& first, const VbVec3d& second, double angle, double radius) {
        const VbVec3d arm = add(scaled(first, std::cos(angle) * radius), scaled(second, std::sin(angle) * radius));
        return projection.placeOf(add(frame.pivot, arm));
    };
    Piece around{HandlePart::Center, {}};
    constexpr double wider = 1.2;
    for (int step = 0; step <= ringSteps; ++step) {
        const double angle = 2 * std::numbers::pi * step / ringSteps;
        if (const auto place = placeAt(projection.right(), projection.up(), angle, m_unit * wider))
            around.places.push_back(*place);
    }
    m_pieces.push_back(std::move(around));
    for (std::size_t i = 0; i < 3; ++i) {
        const VbVec3d& axis = frame.axes[i];
        const VbVec3d across = cross(axis, sight);
        const VbVec3d first = normalized(length(across) > 1e-6 ? across : projection.right(), projection.right());
        const VbVec3d second = normalized(cross(axis, first), projection.up());
        const bool isFacing = std::abs(dot(axis, sight)) > 0.98;
        // The half circle whose middle is nearest to the viewer.
        const double middle = dot(second, sight) < 0 ? std::numbers::pi / 2 : -std::numbers::pi / 2;
        const double half = isFacing ? std::numbers::pi : std::numbers::pi / 2;
        Piece piece{lineParts[i], {}};
        for (int step = 0; step <= ringSteps; ++step) {
            const double angle = middle + half * (2.0 * step / ringSteps - 1);
            if (const auto place = placeAt(first, second, angle, m_unit))
                piece.places.push_back(*place);
        }
        m_pieces.push_back(std::move(piece));
    }
}

HandlePart HandleShape::partAt(const PicturePlace& place) const
{
    HandlePart part = HandlePart::None;
    double nearest = reach;
    // From the front: what is before another wins where both are as near.
    for (std::size_t i = m_pieces.size(); i-- > 0;) {
        const double distance = distanceTo(m_pieces[i], place);
        if (distance < nearest) {
            nearest = distance;
            part = m_pieces[i].part;
        }
    }
    return part;
}
