#pragma once

#include <chrono>
#include <cstdint>
#include <set>

class NxDelayQueueSensor;

/// The scheduled sensors, in the order of `NxDelayQueueSensor::isBefore`, then in the order of scheduling. Idle-only
/// sensors come last, and only when nothing else is queued.
///
/// The host calls `process` from its event loop after the wake-up hook was called. Scheduling and unscheduling take a
/// time logarithmic in the number of queued sensors. Used on the thread that owns the scene only.
class NxDelayQueue {
public:
    /// Called when the queue needs a pass: once until that pass begins. It must only make a note (post an event), and
    /// must not call `process` itself.
    using WakeUpHook = void (*)(void* data);

    NxDelayQueue() = default;
    NxDelayQueue(const NxDelayQueue&) = delete;
    NxDelayQueue& operator=(const NxDelayQueue&) = delete;
    /// Unschedules the remaining sensors.
    ~NxDelayQueue();

    /// The queue that sensors schedule themselves on. It lives until the process ends.
    static NxDelayQueue& getDefault();

    /// Queues a sensor. Does nothing if it is in a queue already, this one or another. If there is no memory, or the
    /// wake-up hook throws, the sensor isn't queued and the exception is passed on.
    void schedule(NxDelayQueueSensor* sensor);
    /// Removes a sensor. Does nothing if it isn't in this queue.
    void unschedule(NxDelayQueueSensor* sensor);
    /// Whether no sensor is queued, those left from a pass included.
    [[nodiscard]] bool isEmpty() const { return m_waiting.empty() && m_running.empty(); }

    /// Triggers every sensor that is queued now, each once. Sensors that are scheduled meanwhile wait for the next pass
    /// and wake the host again; those that are unscheduled or deleted meanwhile are not called. May be called from a
    /// callback: the inner pass then triggers the remaining sensors of the outer one. Returns true if sensors are left.
    bool process();
    /// The same, but stops after a sensor when `budget` is used up. The remaining sensors keep their order, and the
    /// host is woken for them.
    bool process(std::chrono::nanoseconds budget);

    /// Sets the hook; null for none. It is called at once if sensors are queued already.
    void setWakeUpHook(WakeUpHook hook, void* data);

private:
    friend class NxDelayQueueSensor;

    struct Order {
        bool operator()(const NxDelayQueueSensor* left, const NxDelayQueueSensor* right) const;
    };
    using Clock = std::chrono::steady_clock;
    using Sensors = std::set<NxDelayQueueSensor*, Order>;

    void setPriority(NxDelayQueueSensor* sensor, int priority);
    bool processUntil(Clock::time_point end);
    NxDelayQueueSensor* takeNext();
    Sensors& listOf(const NxDelayQueueSensor* sensor);
    void wakeUp();

    /// Scheduled since the latest pass began.
    Sensors m_waiting;
    /// The remaining sensors of that pass.
    Sensors m_running;
    std::uint64_t m_lastSequence = 0;
    /// Sensors up to this sequence number are in m_running.
    std::uint64_t m_lastSequenceOfPass = 0;
    std::uint64_t m_pass = 0;
    bool m_isHostNotified = false;
    WakeUpHook m_hook = nullptr;
    void* m_hookData = nullptr;
};
