#include "orvane/extender/detail/DelayQueuePump.h"

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
    // The queue calls once until the next pass begins, so one event is under way at most.
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
    // With sensors left over, the queue wakes us again, and the new event waits for the next turn of the event loop.
    m_queue.process(m_slice);
    return true;
}
