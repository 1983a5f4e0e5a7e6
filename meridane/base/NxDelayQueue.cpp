#include "meridane/base/NxDelayQueue.h"

#include "meridane/base/NxDelayQueueSensor.h"

#include <utility>

bool NxDelayQueue::Order::operator()(const NxDelayQueueSensor* left, const NxDelayQueueSensor* right) const
{
    const bool leftIsIdleOnly = left->isIdleOnly() != 0;
    const bool rightIsIdleOnly = right->isIdleOnly() != 0;
    if (leftIsIdleOnly != rightIsIdleOnly)
        return rightIsIdleOnly;
    if (left->isBefore(right) != 0)
        return true;
    if (right->isBefore(left) != 0)
        return false;
    return left->m_sequence < right->m_sequence;
}

NxDelayQueue::~NxDelayQueue()
{
    for (const Sensors* list : {&m_waiting, &m_running}) {
        for (NxDelayQueueSensor* sensor : *list)
            sensor->m_queue = nullptr;
    }
}

NxDelayQueue& NxDelayQueue::getDefault()
{
    // Never destroyed, because static sensors may be destroyed later than any other object.
    static NxDelayQueue& queue = *new NxDelayQueue;
    return queue;
}

void NxDelayQueue::schedule(NxDelayQueueSensor* sensor)
{
    if (sensor->m_queue != nullptr)
        return;
    sensor->m_sequence = ++m_lastSequence;
    sensor->m_place = m_waiting.insert(sensor).first;
    sensor->m_queue = this; // after the insertion, which may run out of memory
    try {
        wakeUp();
    } catch (...) {
        unschedule(sensor);
        throw;
    }
}

void NxDelayQueue::unschedule(NxDelayQueueSensor* sensor)
{
    if (sensor->m_queue != this)
        return;
    // By iterator and not by value: the sensor may be partly destroyed, so it can't be compared any more.
    listOf(sensor).erase(sensor->m_place);
    sensor->m_queue = nullptr;
}

void NxDelayQueue::setPriority(NxDelayQueueSensor* sensor, int priority)
{
    // The sensor keeps its entry, so that this can't run out of memory.
    Sensors::node_type entry = listOf(sensor).extract(sensor->m_place);
    sensor->m_priority = priority;
    sensor->m_sequence = ++m_lastSequence;
    sensor->m_place = m_waiting.insert(std::move(entry)).position;
    wakeUp();
}

bool NxDelayQueue::process()
{
    return processUntil(Clock::time_point::max());
}

bool NxDelayQueue::process(std::chrono::nanoseconds budget)
{
    const Clock::time_point now = Clock::now();
    return processUntil(budget < Clock::time_point::max() - now ? now + budget : Clock::time_point::max());
}

bool NxDelayQueue::processUntil(Clock::time_point end)
{
    if (m_running.empty())
        m_running.swap(m_waiting);
    else
        m_running.merge(m_waiting);
    m_lastSequenceOfPass = m_lastSequence;
    m_isHostNotified = false;
    const std::uint64_t pass = ++m_pass;
    const bool isBounded = end != Clock::time_point::max();
    while (NxDelayQueueSensor* const sensor = takeNext()) {
        sensor->trigger();
        if (m_pass != pass || (isBounded && Clock::now() >= end))
            break;
    }
    if (!isEmpty())
        wakeUp();
    return !isEmpty();
}

/// Removes and returns the next sensor of this pass; null when the pass is over.
NxDelayQueueSensor* NxDelayQueue::takeNext()
{
    if (m_running.empty())
        return nullptr;
    NxDelayQueueSensor* const sensor = *m_running.begin();
    // Idle-only sensors are last in both lists, so the first sensor shows whether there is other work.
    const bool isBusy = !m_waiting.empty() && (*m_waiting.begin())->isIdleOnly() == 0;
    if (isBusy && sensor->isIdleOnly() != 0)
        return nullptr;
    unschedule(sensor);
    return sensor;
}

void NxDelayQueue::setWakeUpHook(WakeUpHook hook, void* data)
{
    m_hook = hook;
    m_hookData = data;
    m_isHostNotified = false;
    if (!isEmpty())
        wakeUp();
}

NxDelayQueue::Sensors& NxDelayQueue::listOf(const NxDelayQueueSensor* sensor)
{
    return sensor->m_sequence <= m_lastSequenceOfPass ? m_running : m_waiting;
}

void NxDelayQueue::wakeUp()
{
    if (m_hook == nullptr || std::exchange(m_isHostNotified, true))
        return;
    try {
        m_hook(m_hookData);
    } catch (...) {
        m_isHostNotified = false; // so that the next sensor asks again
        throw;
    }
}
