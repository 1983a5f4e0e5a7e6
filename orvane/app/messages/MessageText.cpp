#include "orvane/app/messages/MessageText.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>

#include <algorithm>

MessageText::MessageText(const QString& text, QWidget* parent)
    : QPlainTextEdit(text, parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(NoFrame);
    setBackgroundVisible(false);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    fitHeight();
}

QSize MessageText::sizeHint() const
{
    return minimumSizeHint();
}

QSize MessageText::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, minimumHeight()};
}

void MessageText::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    fitHeight();
}

void MessageText::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitHeight();
}

void MessageText::fitHeight()
{
    // The layout of a plain text document measures its height in lines.
    const int lines = static_cast<int>(document()->documentLayout()->documentSize().height());
    setVerticalScrollBarPolicy(lines > maxLines ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setFixedHeight(std::clamp(lines, 1, maxLines) * fontMetrics().lineSpacing());
}
