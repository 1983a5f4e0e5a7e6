#pragma once

#include "meridane/query/Query.h"

#include <QList>
#include <QTextLayout>

class QColor;
class QFont;
class QPainter;
class QRect;

/// Texts in which the parts that a query has found are highlighted: underlined, on a light background.
namespace orvane {

using FoundFormats = QList<QTextLayout::FormatRange>;

/// How a part of a text is highlighted on that background.
[[nodiscard]] QTextLayout::FormatRange foundFormat(int start, int length, const QColor& background);
/// How the parts of a text are highlighted on that background; none if nothing is found.
[[nodiscard]] FoundFormats foundFormats(
    const meridane::Query& query, const QString& text, meridane::SearchedText kind, const QColor& background);

/// Paints one line in the middle of the area, from its left side, or its right side for a text that begins there. What
/// doesn't fit leaves an ellipsis. Returns the width that was painted.
int paintFound(QPainter& painter, const QFont& font, const QRect& area, const QString& text, const QColor& color,
    const FoundFormats& formats);

} // namespace orvane
