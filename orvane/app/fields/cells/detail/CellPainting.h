#pragma once

#include "orvane/app/fields/cells/ValueCell.h"
#include "orvane/app/input/PaintedText.h"
#include "orvane/app/look/Look.h"

/// How the kinds of cells paint texts and marks.
namespace orvane {

/// A part of the value, with the font and the colour of the cell, and with what the filter has found highlighted.
int paintText(QPainter& painter, const CellPaint& cell, const QRect& area, const QString& text);
/// The same in another colour.
int paintText(QPainter& painter, const CellPaint& cell, const QRect& area, const QString& text, const QColor& color);
/// A dash for values that differ.
void paintMixed(QPainter& painter, const CellPaint& cell, const QRect& area);

/// As `look::textColor`, which takes longer.
[[nodiscard]] QColor tintOn(look::Tint tint, const QColor& background);
/// The font of the letters of components.
[[nodiscard]] QFont letterFont(const QFont& font);

/// A square at the left side of the area for a mark as high as a line, and the area without it.
[[nodiscard]] QRect markArea(const CellPaint& cell);
[[nodiscard]] QRect besideMark(const CellPaint& cell);

/// Where the triangle is that opens a popup: at the right side of the area.
[[nodiscard]] QRect openMarkArea(const QRect& area);
/// What it leaves of the area.
[[nodiscard]] QRect besideOpenMark(const QRect& area);
void paintOpenMark(QPainter& painter, const CellPaint& cell);

} // namespace orvane
