#pragma once

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/NxSensor.h"

/// A sensor that is called from the toolkit's delay queue, by priority.
class NxDelayQueueSensor : public NxSensor {
public:
    /// The priority of a new sensor.
    static constexpr int defaultPriority = 100;

    /// The sensor isn't queued yet. The data is passed to the callback and stays the caller's.
    explicit NxDelayQueueSensor(NxSensorCallback callback = nullptr, void* data = nullptr);
    /// The sensor leaves the queue.
    ~NxDelayQueueSensor() override;

    /// Queues the sensor on `NxDelayQueue::getDefault()`. It never runs the callback itself, whatever the priority.
    /// Cheap for a sensor that is queued already.
    void schedule() override;
    void unschedule() override;
    [[nodiscard]] int isScheduled() const override;
    /// Non-zero when this sensor's turn comes before that of `other`: when its priority number is smaller. Sensors of
    /// which neither comes before the other keep the order of scheduling. An override must give a strict weak ordering
    /// that doesn't change while a sensor is scheduled.
    [[nodiscard]] virtual int isBefore(const NxDelayQueueSensor* other) const;
    /// Non-zero for a sensor that is called only when no other kind is queued. The answer must not change while the
    /// sensor is scheduled.
    [[nodiscard]] virtual int isIdleOnly() const;

    /// Any number; the smallest is called first. A scheduled sensor goes to the end of its new priority.
    void setPriority(int priority);
    /// The priority, `defaultPriority` at first.
    [[nodiscard]] int getPriority() const { return m_priority; }

protected:
    /// `isScheduled` without a virtual call.
    [[nodiscard]] bool isQueued() const noexcept { return m_queue != nullptr; }

private:
    friend class NxDelayQueue;

    int m_priority = defaultPriority;
    // The queue's data about a queued sensor; m_queue is null for others.
    NxDelayQueue* m_queue = nullptr;
    std::uint64_t m_sequence = 0;
    NxDelayQueue::Sensors::iterator m_place;
};
