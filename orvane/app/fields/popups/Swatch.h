#pragma once

#include "orvane/app/fields/popups/ColorValue.h"

#include <QRect>

class QPainter;
class QPalette;

namespace orvane {

/// The checks that are seen through a translucent colour.
void paintChecks(QPainter& painter, const QRect& area);
/// A colour in a frame. A translucent one is opaque in its left half, and over checks in its right one.
void paintSwatch(QPainter& painter, const QRect& area, const ColorNumbers& color, const QPalette& palette);

} // namespace orvane
