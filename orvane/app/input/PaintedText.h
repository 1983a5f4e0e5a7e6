#pragma once

class QColor;
class QFont;
class QPainter;
class QRect;
class QString;

namespace orvane {

/// Paints one line in the middle of the area, from its left side; what doesn't fit is left out and leaves an ellipsis.
/// Returns the width that was painted.
int paintText(QPainter& painter, const QFont& font, const QRect& area, const QString& text, const QColor& color);

} // namespace orvane
