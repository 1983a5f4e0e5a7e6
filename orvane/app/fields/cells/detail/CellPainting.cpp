#include "orvane/app/fields/cells/detail/CellPainting.h"

#include "orvane/app/input/FoundText.h"

#include <QFontMetrics>
#include <QHash>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace orvane {

int paintText(QPainter& painter, const CellPaint& cell, const QRect& area, const QString& text)
{
    return paintText(painter, cell, area, text, cell.text);
}

int paintText(QPainter& painter, const CellPaint& cell, const QRect& area, const QString& text, const QColor& color)
{
    if (cell.query != nullptr) {
        const FoundFormats formats = foundFormats(*cell.query, text, meridane::SearchedText::Value, cell.background);
        if (!formats.isEmpty())
            return paintFound(painter, cell.font, area, text, color, formats);
    }
    return paintText(painter, cell.font, area, text, color);
}

void paintMixed(QPainter& painter, const CellPaint& cell, const QRect& area)
{
    paintText(painter, cell.font, area, QStringLiteral("—"), look::quietColor(cell.text, cell.background));
}

QColor tintOn(look::Tint tint, const QColor& background)
{
    static QHash<quint64, QColor> cache;
    constexpr int mostBackgrounds = 1000; // of palettes that come and go
    if (cache.size() > mostBackgrounds)
        cache.clear();
    const quint64 key = (static_cast<quint64>(tint) << 32) | background.rgba();
    const auto place = cache.constFind(key);
    return place != cache.constEnd() ? *place : *cache.insert(key, look::textColor(tint, background));
}

QFont letterFont(const QFont& font)
{
    constexpr double size = 0.85; // of a line's
    // Of the cell that was painted last, which most likely has the same font.
    static std::pair<QFont, QFont> last;
    if (last.first == font && last.second != last.first)
        return last.second;
    QFont small = font;
    if (font.pointSizeF() > 0)
        small.setPointSizeF(font.pointSizeF() * size);
    else
        small.setPixelSize(qRound(font.pixelSize() * size));
    small.setBold(true);
    last = {font, small};
    return small;
}

QRect markArea(const CellPaint& cell)
{
    const int side = std::min(look::iconSize(QFontMetrics(cell.font)), cell.area.height());
    return {cell.area.left(), cell.area.top() + (cell.area.height() - side) / 2, side, side};
}

QRect besideMark(const CellPaint& cell)
{
    return cell.area.adjusted(markArea(cell).width() + look::unit(QFontMetrics(cell.font)), 0, 0, 0);
}

QRect openMarkArea(const QRect& area)
{
    const int side = std::min(area.height() * 3 / 4, area.width());
    return area.adjusted(area.width() - side, 0, 0, 0);
}

QRect besideOpenMark(const QRect& area)
{
    return area.adjusted(0, 0, -openMarkArea(area).width(), 0);
}

void paintOpenMark(QPainter& painter, const CellPaint& cell)
{
    const QRectF area = openMarkArea(cell.area);
    const qreal unit = look::unit(QFontMetrics(cell.font));
    const QPointF tip(area.center().x(), area.center().y() + unit / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::quietColor(cell.text, cell.background));
    painter.drawPolygon(QPolygonF{tip, tip + QPointF(-unit, -unit), tip + QPointF(unit, -unit)});
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace orvane
