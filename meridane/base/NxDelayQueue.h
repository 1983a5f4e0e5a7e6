#pragma once

#include <chrono>
#include <cstdint>
#include <set>

class NxDelayQueueSensor;

/// The sensors that wait for their call, first those that come before others (`NxDelayQueueSensor::isBefore`), then in
/// the order of scheduling. Sensors that are for idle times only come last, and only when nothing else is queued.
///
/// The host calls `process` from its event loop; the wake-up hook tells it when. Scheduling and unscheduling take a
/// time logarithmic in the number of queued sensors. Used on the thread that owns the scene only.
class NxDelayQueue {
public:
    /// Called when the queue needs a pass: once, until that pass begins. It must only make a note (post an event), and
    /// must not call `process` itself.
    using WakeUpHook = void (*)(void* data);

    NxDelayQueue() = default;
    NxDelayQueue(const NxDelayQueue&) = delete;
    NxDelayQueue& operator=(const NxDelayQueue&) = delete;
    /// Sensors that still wait are unscheduled.
    ~NxDelayQueue();

    /// The queue that sensors schedule themselves on. It lives until the process ends.
    static NxDelayQueue& getDefault();

    /// Queues a sensor. Does nothing when it waits in a queue already, be it another one. When there is no
    /// memory for it, or the wake-up hook throws, the sensor isn't queued and the exception is passed on.
    void schedule(NxDelayQueueSensor* sensor);
    /// Takes a sensor out. Does nothing when it doesn't wait in this queue.
    void unschedule(NxDelayQueueSensor* sensor);
    [[nodiscard]] bool isEmpty() const { return m_waiting.empty() && m_running.empty(); }

    /// Triggers every sensor that is queued now, each once. What gets scheduled meanwhile waits for the next pass and
    /// wakes the host again; what gets unscheduled or deleted meanwhile is not called. May be called from a callback:
    /// the inner pass then takes the outer one's sensors over. Returns true when sensors are left.
    bool process();
    /// The same, but stops after the first sensor at whose end `budget` is used up; the sensors left keep their places,
    /// and the host is woken for them.
    bool process(std::chrono::nanoseconds budget);

    /// Sets the hook; null for none. It is called at once when sensors are queued already.
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
    /// What that pass has to do, or has left.
    Sensors m_running;
    std::uint64_t m_lastSequence = 0;
    /// Sensors up to this sequence number are in m_running.
    std::uint64_t m_lastSequenceOfPass = 0;
    std::uint64_t m_pass = 0;
    bool m_hostIsTold = false;
    WakeUpHook m_hook = nullptr;
    void* m_hookData = nullptr;
};
