#include "orvane/app/fields/popups/ColorSquare.h"

#include "orvane/app/fields/popups/StepFactor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

ColorSquare::ColorSquare(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("colorSquare"));
    setAccessibleName(tr("Saturation and value"));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ColorSquare::setColor(const orvane::HueNumbers& color)
{
    m_color = color;
    update();
}

QSize ColorSquare::sizeHint() const
{
    const int side = 12 * fontMetrics().height();
    return {side, side};
}

void ColorSquare::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = rect();
    QLinearGradient saturation(area.topLeft(), area.topRight());
    saturation.setColorAt(0, Qt::white);
    saturation.setColorAt(1, orvane::shownColor(orvane::fromHue({m_color.hue, 1, 1}, 1)));
    painter.fillRect(area, saturation);
    QLinearGradient value(area.topLeft(), area.bottomLeft());
    value.setColorAt(0, Qt::transparent);
    value.setColorAt(1, Qt::black);
    painter.fillRect(area, value);

    const qreal unit = fontMetrics().height() / 3.0;
    const QPointF place(std::clamp(m_color.saturation, 0.0, 1.0) * area.width(),
        (1 - std::clamp(m_color.value, 0.0, 1.0)) * area.height());
    painter.setPen(QPen(Qt::black, hasFocus() ? 3 : 2));
    painter.drawEllipse(place, unit, unit);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawEllipse(place, unit, unit);
}

void ColorSquare::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        chooseAt(event->position());
}

void ColorSquare::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) != 0)
        chooseAt(event->position());
}

void ColorSquare::keyPressEvent(QKeyEvent* event)
{
    const double step = 0.01 * orvane::stepFactor(event->modifiers());
    switch (event->key()) {
    case Qt::Key_Left:
        return choose(m_color.saturation - step, m_color.value);
    case Qt::Key_Right:
        return choose(m_color.saturation + step, m_color.value);
    case Qt::Key_Down:
        return choose(m_color.saturation, m_color.value - step);
    case Qt::Key_Up:
        return choose(m_color.saturation, m_color.value + step);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ColorSquare::chooseAt(const QPointF& position)
{
    choose(position.x() / std::max(1, width() - 1), 1 - position.y() / std::max(1, height() - 1));
}

void ColorSquare::choose(double saturation, double value)
{
    m_color.saturation = std::clamp(saturation, 0.0, 1.0);
    m_color.value = std::clamp(value, 0.0, 1.0);
    update();
    Q_EMIT chosen(m_color.saturation, m_color.value);
}
