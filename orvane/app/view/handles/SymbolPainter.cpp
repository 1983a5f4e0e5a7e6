#include "orvane/app/view/handles/SymbolPainter.h"

#include "orvane/app/tree/NodeIcons.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

using namespace meridane;

namespace {

/// How far the rays of a light are drawn, in points of the screen.
constexpr double rayLength = 70;
const QColor symbolBorder(0, 0, 0, 190);

using Segment = std::pair<VbVec3d, VbVec3d>;

/// Paints lines of the scene, with what is in front of the viewer of each. Two-tone, so that they are seen on any
/// colour.
void paintSegments(
    QPainter& painter, const std::vector<Segment>& segments, const PictureProjection& projection, const QColor& color)
{
    std::vector<QLineF> lines;
    for (const auto& [from, to] : segments) {
        std::array<std::optional<PicturePlace>, 2> places{projection.placeOf(from), projection.placeOf(to)};
        if (!places[0] && !places[1])
            continue;
        // Of a line that goes behind the viewer, the part up to the viewer, found in halves.
        VbVec3d seen = places[0] ? from : to;
        VbVec3d hidden = places[0] ? to : from;
        constexpr int halves = 12;
        for (int half = 0; half < halves && places[0].has_value() != places[1].has_value(); ++half) {
            const VbVec3d middle = scaled(add(seen, hidden), 0.5);
            (projection.placeOf(middle) ? seen : hidden) = middle;
        }
        for (std::optional<PicturePlace>& place : places) {
            if (!place)
                place = projection.placeOf(seen);
        }
        if (places[0] && places[1])
            lines.emplace_back((*places[0])[0], (*places[0])[1], (*places[1])[0], (*places[1])[1]);
    }
    for (const auto& [width, pen] : {std::pair(3.5, symbolBorder), std::pair(1.5, color)}) {
        painter.setPen(QPen(pen, width));
        for (const QLineF& line : lines)
            painter.drawLine(line);
    }
}

std::vector<Segment> viewVolume(const NxCamera& camera, const Matrix4d& parentToScene, double aspect)
{
    const NxViewpoint eye = NxViewpoint::ofCamera(camera, parentToScene);
    const auto corners = [&](float distance) {
        std::array<VbVec3d, 4> points;
        for (std::size_t i = 0; i < 4; ++i)
            points[i]
                = eye.pointAt({i == 1 || i == 2 ? 1.F : 0.F, i >= 2 ? 1.F : 0.F}, static_cast<float>(aspect), distance);
        return points;
    };
    const std::array<VbVec3d, 4> nearest = corners(camera.nearDistance.getValue());
    const std::array<VbVec3d, 4> farthest = corners(camera.farDistance.getValue());
    std::vector<Segment> segments;
    for (std::size_t i = 0; i < 4; ++i) {
        segments.emplace_back(nearest[i], nearest[(i + 1) % 4]);
        segments.emplace_back(farthest[i], farthest[(i + 1) % 4]);
        segments.emplace_back(nearest[i], farthest[i]);
    }
    return segments;
}

/// An arrow along the direction of a light, and around it the circle of a cone with that angle.
std::vector<Segment> rays(const NodePlacement& placement, double size, double angle)
{
    const bool isSun = dynamic_cast<const NxDirectionalLight*>(&placement.node()) != nullptr;
    const std::array<VbVec3d, 3> axes = placement.ownAxes();
    const VbVec3d ahead = scaled(axes[2], -size);
    const VbVec3d tip = isSun ? subtract(placement.pivot(), ahead) : placement.pivot();
    const VbVec3d end = add(tip, ahead);
    const double wide = angle > 0 ? size * std::tan(std::min(angle, 1.4)) : size * 0.12;
    constexpr int steps = 24;
    std::vector<Segment> segments{{tip, end}};
    // A cone opens from the lamp; an arrow closes at its end.
    const VbVec3d middle = angle > 0 ? end : add(tip, scaled(ahead, 0.8));
    for (int step = 0; step < steps; ++step) {
        const auto around = [&](int number) {
            const double turn = 2 * std::numbers::pi * number / steps;
            return add(middle, add(scaled(axes[0], wide * std::cos(turn)), scaled(axes[1], wide * std::sin(turn))));
        };
        segments.emplace_back(around(step), around(step + 1));
        if (step % (steps / 4) == 0)
            segments.emplace_back(angle > 0 ? tip : end, around(step));
    }
    return segments;
}

} // namespace

VbVec3d orvane::symbolPoint(const NodePlacement& placement, const PictureProjection& projection)
{
    const VbVec3d point = placement.pivot();
    if (dynamic_cast<const NxDirectionalLight*>(&placement.node()) == nullptr)
        return point;
    return add(point, scaled(placement.ownAxes()[2], projection.unitsPerPoint(point) * rayLength));
}

void orvane::paintSymbol(QPainter& painter, const NxNode& node, const QPointF& place, const QColor& border,
    bool isSelected, const QPalette& palette)
{
    const auto* const light = dynamic_cast<const NxLight*>(&node);
    const bool isOff = light != nullptr && !light->on.isIgnored() && light->on.getValue() == 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QColor plate = palette.color(QPalette::Base);
    constexpr int plateOpacity = 235;
    plate.setAlpha(plateOpacity);
    painter.setPen(QPen(QColor(255, 255, 255, 200), 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(place, symbolRadius, symbolRadius);
    painter.setPen(QPen(isSelected ? border : symbolBorder, isSelected ? 2.5 : 1.5));
    painter.setBrush(plate);
    painter.drawEllipse(place, symbolRadius, symbolRadius);
    if (isOff)
        painter.setOpacity(0.4);
    constexpr double iconSize = 16;
    const QRectF box(place - QPointF(iconSize / 2, iconSize / 2), QSizeF(iconSize, iconSize));
    nodeIcon(node.getTypeId()).paint(&painter, box.toRect());
    painter.restore();
}

void orvane::paintReach(QPainter& painter, const NodePlacement& placement, const PictureProjection& projection,
    double aspect, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = projection.unitsPerPoint(placement.pivot()) * rayLength;
    if (const auto* camera = dynamic_cast<const NxCamera*>(&placement.node()); camera != nullptr) {
        paintSegments(painter, viewVolume(*camera, placement.parentToScene(), aspect), projection, color);
    } else if (const auto* spot = dynamic_cast<const NxSpotLight*>(&placement.node()); spot != nullptr) {
        const double angle
            = spot->cutOffAngle.isIgnored() ? 0.7853982 : static_cast<double>(spot->cutOffAngle.getValue());
        paintSegments(painter, rays(placement, size, angle), projection, color);
    } else if (dynamic_cast<const NxDirectionalLight*>(&placement.node()) != nullptr) {
        paintSegments(painter, rays(placement, size, 0), projection, color);
    }
    painter.restore();
}
