#include "meridane/base/NxDelayQueueSensor.h"

NxDelayQueueSensor::NxDelayQueueSensor(NxSensorCallback callback, void* data)
    : NxSensor(callback, data)
{
}

NxDelayQueueSensor::~NxDelayQueueSensor()
{
    if (m_queue != nullptr)
        m_queue->unschedule(this);
}

void NxDelayQueueSensor::schedule()
{
    if (m_queue == nullptr)
        NxDelayQueue::getDefault().schedule(this);
}

void NxDelayQueueSensor::unschedule()
{
    if (m_queue != nullptr)
        m_queue->unschedule(this);
}

int NxDelayQueueSensor::isScheduled() const
{
    return m_queue != nullptr ? 1 : 0;
}

int NxDelayQueueSensor::isBefore(const NxDelayQueueSensor* other) const
{
    return m_priority < other->m_priority ? 1 : 0;
}

int NxDelayQueueSensor::isIdleOnly() const
{
    return 0;
}

void NxDelayQueueSensor::setPriority(int priority)
{
    if (priority == m_priority)
        return;
    if (m_queue != nullptr)
        m_queue->setPriority(this, priority);
    else
        m_priority = priority;
}
