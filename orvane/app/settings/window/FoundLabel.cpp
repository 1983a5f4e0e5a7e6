#include "orvane/app/settings/window/FoundLabel.h"

#include "orvane/app/look/Look.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

FoundLabel::FoundLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void FoundLabel::setQuery(const meridane::Query& query)
{
    m_query = query;
    update();
}

void FoundLabel::setQuiet(bool isQuiet)
{
    m_isQuiet = isQuiet;
    update();
}

void FoundLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    const QColor background = palette().color(backgroundRole());
    const QColor color = palette().color(foregroundRole());
    QTextLayout layout(text(), font(), this);
    QTextOption option(layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    option.setWrapMode(wordWrap() ? QTextOption::WordWrap : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setFormats(orvane::foundFormats(m_query, text(), meridane::SearchedText::Value, background));
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(area.width());
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    painter.setPen(m_isQuiet ? orvane::look::quietColor(color, background) : color);
    layout.draw(&painter, area.topLeft());
}
