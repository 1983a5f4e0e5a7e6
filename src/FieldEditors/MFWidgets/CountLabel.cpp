#include "FieldEditors/MFWidgets/CountLabel.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QtMath>

CountLabel::CountLabel(QWidget* parent)
    : QLabel(parent)
{
    // So that a new line doesn't repaint the frame behind it.
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
