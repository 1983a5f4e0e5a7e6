#include "Console/MessageQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextOption>

namespace orvane {

namespace {

/// In characters. The default way to break lines looks for the end of a word over and over, which takes minutes for a
/// word of a megabyte.
constexpr qsizetype longText = 10'000;

constexpr qint64 longestTurn = 400; // in milliseconds
constexpr int largestTurn = 2000; // in messages, which the view then takes some tens of milliseconds to lay out

QEvent::Type turnEventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace

MessageQueue::MessageQueue(QTextEdit& view)
    : m_view(view)
{
}

MessageQueue::~MessageQueue() = default;

void MessageQueue::add(const QColor& color, const QString& text)
{
    if (!m_turn.isValid())
        startTurn();
    if (m_waiting.empty() && !turnIsOver())
        show(color, text);
    else
        m_waiting.push_back({color, text});
}

void MessageQueue::show(const QColor& color, const QString& text)
{
    if (text.size() > longText)
        m_view.setWordWrapMode(QTextOption::WrapAnywhere);
    m_view.setTextColor(color);
    m_view.append(text);
}

void MessageQueue::clearView()
{
    m_view.clear();
    m_view.setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

bool MessageQueue::event(QEvent* event)
{
    if (event->type() != turnEventType())
        return QObject::event(event);
    takeTurn();
    return true;
}

void MessageQueue::startTurn()
{
    m_turn.start();
    QCoreApplication::postEvent(this, new QEvent(turnEventType()), Qt::LowEventPriority);
}

bool MessageQueue::turnIsOver() const
{
    return m_turn.hasExpired(longestTurn);
}

void MessageQueue::takeTurn()
{
    m_turn.invalidate();
    if (m_waiting.empty())
        return;
    startTurn();
    // In one edit, so that the view lays out its lines once.
    QScrollBar* const bar = m_view.verticalScrollBar();
    const bool endIsInSight = bar->value() >= bar->maximum();
    QTextCursor edit(m_view.document());
    edit.beginEditBlock();
    for (int shown = 0; !m_waiting.empty() && shown < largestTurn && !turnIsOver(); ++shown) {
        const Message& message = m_waiting.front();
        show(message.color, message.text);
        m_waiting.pop_front();
    }
    edit.endEditBlock();
    if (endIsInSight)
        bar->setValue(bar->maximum());
}

} // namespace orvane
