#pragma once

#include <QPoint>
#include <QStringList>

class QPainter;

namespace orvane {

/// Paints lines of text on a plate that is seen over any picture; `corner` is its upper left one. Returns its height.
int paintLines(QPainter& painter, const QPoint& corner, const QStringList& lines);

} // namespace orvane
