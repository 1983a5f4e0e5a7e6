#pragma once

#include <QObject>

#include <chrono>

class NxDelayQueue;

/// Runs a delay queue from the event loop: answers its wake-up call with one posted event, and processes the queue, for
/// a bounded time, when the event arrives. So a sensor is called soon, and never inside the call that changed its
/// field.
///
/// A queue has one pump at a time. Lives on the thread that owns the scene.
class DelayQueuePump : public QObject {
public:
    /// How long one event may take before input and painting get their turn.
    static constexpr std::chrono::milliseconds defaultSlice{8};

    explicit DelayQueuePump(NxDelayQueue& queue, std::chrono::nanoseconds slice = defaultSlice);
    ~DelayQueuePump() override;

protected:
    bool event(QEvent* event) override;

private:
    NxDelayQueue& m_queue;
    std::chrono::nanoseconds m_slice;
};
