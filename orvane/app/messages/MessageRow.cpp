#include "orvane/app/messages/MessageRow.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/look/Symbols.h"
#include "orvane/app/messages/MessageText.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

namespace {

QString symbolOf(MessageSeverity severity)
{
    switch (severity) {
    case MessageSeverity::Information:
        return QStringLiteral("information");
    case MessageSeverity::Warning:
        return QStringLiteral("warning");
    case MessageSeverity::Error:
        break;
    }
    return QStringLiteral("error");
}

orvane::look::Tint tintOf(MessageSeverity severity)
{
    switch (severity) {
    case MessageSeverity::Information:
        return orvane::look::Tint::Information;
    case MessageSeverity::Warning:
        return orvane::look::Tint::Warning;
    case MessageSeverity::Error:
        break;
    }
    return orvane::look::Tint::Error;
}

} // namespace

MessageRow::MessageRow(MessageSeverity severity, const QString& text, const QString& topic, QWidget* parent)
    : QFrame(parent)
    , m_severity(severity)
    , m_topic(topic)
    , m_icon(new QWidget(this))
    , m_text(new MessageText(text, this))
    , m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(12, 6, 6, 6);
    const int size = orvane::look::iconSize(fontMetrics());
    m_icon->setFixedSize(size, size);
    m_layout->addWidget(m_icon, 0, Qt::AlignTop);

    m_text->setObjectName(QStringLiteral("messageText"));
    m_text->setAccessibleName(tr("Message"));
    m_layout->addWidget(m_text, 1, Qt::AlignTop);

    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("closeMessage"));
    button->setAutoRaise(true);
    button->setIcon(orvane::look::symbol(QStringLiteral("close")));
    orvane::followLanguage(button, [button] {
        button->setToolTip(tr("Close this message"));
        button->setAccessibleName(button->toolTip());
    });
    connect(button, &QToolButton::clicked, this, &MessageRow::closed);
    m_layout->addWidget(button, 0, Qt::AlignTop);
}

void MessageRow::addButton(const QString& text, const QString& name, const std::function<void()>& clicked)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, clicked);
    m_layout->insertWidget(m_layout->indexOf(m_text) + ++m_buttons, button, 0, Qt::AlignTop);
}

QString MessageRow::text() const
{
    return m_text->toPlainText();
}

void MessageRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor window = palette().color(QPalette::Window);
    const orvane::look::Tint tint = tintOf(m_severity);
    const QColor wash = orvane::look::washColor(tint, window);
    painter.fillRect(rect(), wash);
    painter.fillRect(QRect(0, 0, orvane::look::unit(fontMetrics()), height()), orvane::look::markColor(tint, wash));
    orvane::look::paintSymbol(painter, symbolOf(m_severity), m_icon->geometry(), orvane::look::markColor(tint, wash));
}
