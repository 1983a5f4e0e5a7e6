#include "orvane/app/SensorPump.h"

#include "orvane/app/SliceClock.h"

#include "meridane/base/NxDelayQueue.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

QEvent::Type passEvent()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

void postPass(void* pump)
{
    QCoreApplication::postEvent(static_cast<SensorPump*>(pump), new QEvent(passEvent()));
}

} // namespace

SensorPump::SensorPump()
{
    NxDelayQueue::getDefault().setWakeUpHook(&postPass, this);
}

SensorPump::~SensorPump()
{
    NxDelayQueue::getDefault().setWakeUpHook(nullptr, nullptr);
}

bool SensorPump::event(QEvent* event)
{
    if (event->type() != passEvent())
        return QObject::event(event);
    NxDelayQueue::getDefault().process(SliceClock::length);
    return true;
}
