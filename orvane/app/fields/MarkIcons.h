#pragma once

#include "orvane/app/fields/FieldMark.h"

class QColor;
class QPainter;
class QRect;

namespace orvane {

/// Draws the icon of a mark; `isOn` fills it.
void drawMark(QPainter& painter, FieldMark mark, const QRect& place, const QColor& color, bool isOn);

} // namespace orvane
