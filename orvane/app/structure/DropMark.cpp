#include "orvane/app/structure/DropMark.h"

#include <QPainter>

namespace {

constexpr int thickness = 2;

} // namespace

DropMark::DropMark(QWidget* viewport)
    : QWidget(viewport)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("dropMark"));
    hide();
}

void DropMark::showLine(const QRect& row, bool isBelow)
{
    m_isLine = true;
    const int y = isBelow ? row.bottom() : row.top() - 1;
    setGeometry(row.left(), y - thickness / 2, parentWidget()->width() - row.left(), thickness);
    show();
    update();
}

void DropMark::showFrame(const QRect& row)
{
    m_isLine = false;
    setGeometry(row);
    show();
    update();
}

void DropMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Highlight);
    if (m_isLine) {
        painter.fillRect(rect(), color);
        return;
    }
    painter.setPen(QPen(color, thickness));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
