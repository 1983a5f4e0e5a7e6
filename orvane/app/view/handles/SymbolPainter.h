#pragma once

#include "meridane/gl/geometry/NodePlacement.h"
#include "meridane/gl/geometry/PictureProjection.h"

#include <QColor>

class QPainter;
class QPalette;
class QPointF;

namespace orvane {

/// The radius of a symbol, in points of the screen.
inline constexpr double symbolRadius = 11;

/// Where the symbol of a light or camera is in the scene. That of a light without a place is where its rays come from,
/// a little away from the origin of its group.
[[nodiscard]] VbVec3d symbolPoint(
    const meridane::NodePlacement& placement, const meridane::PictureProjection& projection);

/// Paints the symbol of a light or camera: its icon on a plate with a light and a dark border, seen on any colour. A
/// light that is off is paler.
void paintSymbol(QPainter& painter, const NxNode& node, const QPointF& place, const QColor& border, bool isSelected,
    const QPalette& palette);

/// Paints what a selected light or camera does: the view volume of a camera, the direction of a light, the cone of a
/// spot light.
void paintReach(QPainter& painter, const meridane::NodePlacement& placement,
    const meridane::PictureProjection& projection, double aspect, const QColor& color);

} // namespace orvane
