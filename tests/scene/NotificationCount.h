#pragma once

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxFieldSensor.h"

/// Counts the notifications of a field's observers. The delay queue is processed after each change.
class NotificationCount {
public:
    explicit NotificationCount(NxField& field)
        : m_sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &m_count)
    {
        m_sensor.attach(&field);
    }

    /// The number of callbacks since the last call; what waits on the queue is processed first.
    int take()
    {
        NxDelayQueue::getDefault().process();
        const int count = m_count;
        m_count = 0;
        return count;
    }

private:
    int m_count = 0;
    NxFieldSensor m_sensor;
};
