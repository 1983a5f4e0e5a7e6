#pragma once

#include <QIcon>

class QPainter;
class QPalette;
class QRect;

namespace orvane {

/// Draws an open eye for a node that is shown in the view, or a closed one.
void drawEye(QPainter& painter, const QRect& place, const QColor& color, bool isOpen);
/// The closed eye, in the colour of the text of buttons.
[[nodiscard]] QIcon hiddenIcon(const QPalette& palette);

} // namespace orvane
