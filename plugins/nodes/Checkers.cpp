#include "plugins/nodes/Checkers.h"

#include <QPainter>

namespace nodes {

void paintCheckers(QPainter& painter, const QRect& place)
{
    constexpr int side = 8;
    const QColor light(0x9a, 0x9a, 0x9a);
    const QColor dark(0x78, 0x78, 0x78);
    for (int y = place.top(); y <= place.bottom(); y += side) {
        for (int x = place.left(); x <= place.right(); x += side) {
            const bool isLight = ((x - place.left()) / side + (y - place.top()) / side) % 2 == 0;
            painter.fillRect(QRect(x, y, side, side).intersected(place), isLight ? light : dark);
        }
    }
}

} // namespace nodes
