#include "orvane/app/fields/popups/ColorBar.h"

#include "orvane/app/fields/popups/StepFactor.h"
#include "orvane/app/fields/popups/Swatch.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

ColorBar::ColorBar(Kind kind, QWidget* parent)
    : QWidget(parent)
    , m_kind(kind)
{
    setObjectName(kind == Kind::Hue ? QStringLiteral("hueBar") : QStringLiteral("opacityBar"));
    setAccessibleName(kind == Kind::Hue ? tr("Hue") : tr("Opacity"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ColorBar::setColor(const orvane::HueNumbers& color, double opacity)
{
    m_color = color;
    m_number = m_kind == Kind::Hue ? color.hue : opacity;
    update();
}

QSize ColorBar::sizeHint() const
{
    return {12 * fontMetrics().height(), fontMetrics().height() + 2};
}

void ColorBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF area = rect();
    QLinearGradient gradient(area.topLeft(), area.topRight());
    if (m_kind == Kind::Hue) {
        for (int sextant = 0; sextant <= 6; ++sextant)
            gradient.setColorAt(sextant / 6.0, QColor::fromHsv(sextant * 60 % 360, 255, 255));
    } else {
        orvane::paintChecks(painter, rect());
        gradient.setColorAt(0, orvane::shownColor(orvane::fromHue(m_color, 0)));
        gradient.setColorAt(1, orvane::shownColor(orvane::fromHue(m_color, 1)));
    }
    painter.fillRect(area, gradient);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal half = area.height() / 5;
    const qreal place
        = std::clamp(std::clamp(m_number / highest(), 0.0, 1.0) * area.width(), half + 1, area.width() - half - 1);
    const QRectF mark(place - half, 1.5, 2 * half, area.height() - 3);
    painter.setPen(QPen(Qt::black, hasFocus() ? 3 : 2));
    painter.drawRect(mark);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(mark);
}

void ColorBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        chooseAt(event->position());
}

void ColorBar::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) != 0)
        chooseAt(event->position());
}

void ColorBar::keyPressEvent(QKeyEvent* event)
{
    const double step = (m_kind == Kind::Hue ? 1 : 0.01) * orvane::stepFactor(event->modifiers());
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return choose(m_number - step);
    case Qt::Key_Right:
    case Qt::Key_Up:
        return choose(m_number + step);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ColorBar::chooseAt(const QPointF& position)
{
    choose(position.x() / std::max(1, width() - 1) * highest());
}

void ColorBar::choose(double number)
{
    m_number = std::clamp(number, 0.0, highest());
    if (m_kind == Kind::Hue)
        m_color.hue = m_number;
    update();
    Q_EMIT chosen(m_number);
}
