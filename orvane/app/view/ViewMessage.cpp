#include "orvane/app/view/ViewMessage.h"

#include <QLabel>
#include <QVBoxLayout>

QLabel* orvane::addViewMessage(QWidget* view, const QString& text)
{
    auto* const message = new QLabel(text, view);
    message->setTextFormat(Qt::PlainText);
    message->setObjectName(QStringLiteral("viewMessage"));
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignCenter);
    message->setMargin(24);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const layout = new QVBoxLayout(view);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(message);
    message->show();
    return message;
}
