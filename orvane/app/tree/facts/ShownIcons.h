#pragma once

class QColor;
class QPainter;
class QRect;

namespace orvane {

/// Draws an open eye for a node that is shown in the view, or a closed one.
void drawEye(QPainter& painter, const QRect& place, const QColor& color, bool isOpen);

} // namespace orvane
