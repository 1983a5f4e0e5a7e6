#include "orvane/extender/detail/DelayQueuePump.h"

#include "orvane/extender/detail/CallExtensions.h"

#include "meridane/base/NxDelayQueue.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

QEvent::Type pumpEventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace

DelayQueuePump::DelayQueuePump(NxDelayQueue& queue, std::chrono::nanoseconds slice)
    : m_queue(queue)
    , m_slice(slice)
{
    // The queue calls once until the next pass begins, so at most one event is posted.
    const auto postEvent = [](void* pump) {
        QCoreApplication::postEvent(static_cast<DelayQueuePump*>(pump), new QEvent(pumpEventType()));
    };
    m_queue.setWakeUpHook(postEvent, this);
}

DelayQueuePump::~DelayQueuePump()
{
    m_queue.setWakeUpHook(nullptr, nullptr);
}

bool DelayQueuePump::event(QEvent* event)
{
    if (event->type() != pumpEventType())
        return QObject::event(event);
    // If sensors are left, the queue wakes the pump again, and the new event is handled in the next turn of the event
    // loop.
    Q_EMIT passBegins();
    bool isWhole = false;
    orvane::callExtensions(QStringLiteral("a sensor's callback"), [&] {
        m_queue.process(m_slice);
        isWhole = true;
    });
    if (!isWhole && !m_queue.isEmpty())
        QCoreApplication::postEvent(this, new QEvent(pumpEventType()));
    Q_EMIT passEnded(m_queue.isEmpty());
    return true;
}
