#pragma once

#include <QPoint>
#include <QSize>
#include <QStringList>

class QFontMetrics;
class QPainter;

namespace orvane {

/// The size of the plate on which `paintLines` paints these lines.
[[nodiscard]] QSize plateSize(const QFontMetrics& metrics, const QStringList& lines);
/// Paints lines of text on a plate that is seen over any picture; `corner` is its upper left one.
void paintLines(QPainter& painter, const QPoint& corner, const QStringList& lines);

} // namespace orvane
