#pragma once

class QPainter;
class QRect;

namespace nodes {

/// Paints grey squares, on which one sees what is translucent.
void paintCheckers(QPainter& painter, const QRect& place);

} // namespace nodes
