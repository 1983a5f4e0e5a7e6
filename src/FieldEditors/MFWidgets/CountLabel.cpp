#include "FieldEditors/MFWidgets/CountLabel.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QtMath>

CountLabel::CountLabel(QWidget* parent)
    : QLabel(parent)
{
    // So the frame behind it isn't painted along with a new line.
    setAutoFillBackground(true);
}

void CountLabel::setLine(const QString& line, const QString& richText)
{
    m_line = line;
    setText(richText);
    fitSize();
}

void CountLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitSize();
}

void CountLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignCenter, palette(), isEnabled(), m_line, foregroundRole());
}

void CountLabel::fitSize()
{
    const QFontMetricsF metrics(font());
    setFixedSize(qCeil(metrics.horizontalAdvance(m_line)), qCeil(metrics.height()));
}
