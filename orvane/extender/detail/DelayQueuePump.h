#pragma once

#include <QObject>

#include <chrono>

class NxDelayQueue;

/// Processes a delay queue from the event loop: when the queue wakes it, it posts one event, and when the event
/// arrives, it processes the queue for a limited time. So a sensor is called soon, and never inside the call that
/// changed its field.
///
/// A queue has one pump at a time. Thread of the scene only.
class DelayQueuePump : public QObject {
    Q_OBJECT

public:
    /// The longest time for one event, so that input and painting aren't delayed.
    static constexpr std::chrono::milliseconds defaultSlice{8};

    explicit DelayQueuePump(NxDelayQueue& queue, std::chrono::nanoseconds slice = defaultSlice);
    ~DelayQueuePump() override;

Q_SIGNALS:
    /// Sensors are about to be called, and have been called. `isLast` says whether none waits any more.
    void passBegins();
    void passEnded(bool isLast);

protected:
    bool event(QEvent* event) override;

private:
    NxDelayQueue& m_queue;
    std::chrono::nanoseconds m_slice;
};
