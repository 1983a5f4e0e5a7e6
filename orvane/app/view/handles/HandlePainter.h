#pragma once

#include "orvane/app/view/handles/HandleShape.h"

class QPainter;
class QPalette;
class QPointF;
class QRect;
class QString;

namespace orvane {

/// Paints handles, each line in the colour of its axis with a dark border, which is seen on light and dark. The part
/// `marked` is highlighted.
void paintHandles(QPainter& painter, const HandleShape& shape, HandleShape::Kind kind, HandlePart marked);

/// Paints a short text beside a place, inside of the area.
void paintHandleText(
    QPainter& painter, const QString& text, const QPointF& place, const QRect& area, const QPalette& palette);

} // namespace orvane
