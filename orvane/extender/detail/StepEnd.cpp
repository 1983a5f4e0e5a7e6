#include "orvane/extender/detail/StepEnd.h"

#include "orvane/extender/detail/UserActionTracker.h"

#include "meridane/base/NxDelayQueue.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace {

QEvent::Type lookEventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace

StepEnd::StepEnd(const UserActionTracker& tracker, const NxDelayQueue& queue)
    : m_tracker(tracker)
    , m_queue(queue)
{
}

void StepEnd::lookLater()
{
    // After the events that the action has posted.
    if (!std::exchange(m_isPosted, true))
        QCoreApplication::postEvent(this, new QEvent(lookEventType()), Qt::LowEventPriority);
}

void StepEnd::aboutToChange(const meridane::PlaceChange& change) noexcept
{
    if (change.cause == meridane::PlaceChange::Cause::Write)
        lookLater();
}

bool StepEnd::event(QEvent* event)
{
    if (event->type() != lookEventType())
        return QObject::event(event);
    m_isPosted = false;
    Q_EMIT changed();
    if (m_tracker.currentAction() == UserActionTracker::none && m_queue.isEmpty())
        Q_EMIT ended();
    return true;
}
