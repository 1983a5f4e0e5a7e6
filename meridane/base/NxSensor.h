#pragma once

class NxSensor;

/// What a sensor calls when it triggers. `data` is the pointer the sensor was given. The callback may schedule, change
/// or delete any sensor, the calling one included. It must not throw.
using NxSensorCallback = void (*)(void* data, NxSensor* sensor);

/// Something that calls back later: when it is scheduled, and its turn comes.
///
/// Sensors belong to the thread that owns the scene. A sensor is owned by who made it; it may die at any time, and is
/// not called any more from then on. Neither is its `data` touched otherwise than by handing it to the callback.
class NxSensor {
public:
    /// A sensor without a callback triggers without effect.
    explicit NxSensor(NxSensorCallback callback = nullptr, void* data = nullptr);
    NxSensor(const NxSensor&) = delete;
    NxSensor& operator=(const NxSensor&) = delete;

    // The virtual operations keep this order throughout the hierarchy.

    virtual ~NxSensor();
    /// Asks for a call. Does nothing when the sensor is scheduled already.
    virtual void schedule() = 0;
    /// Takes the request back. Does nothing when the sensor isn't scheduled.
    virtual void unschedule() = 0;
    /// Non-zero from `schedule` until the sensor is triggered or unscheduled.
    [[nodiscard]] virtual int isScheduled() const = 0;
    /// Runs the callback now.
    virtual void trigger();

    /// Replaces callback and data.
    void setCallback(NxSensorCallback callback, void* data);
    [[nodiscard]] NxSensorCallback getCallback() const { return m_callback; }
    [[nodiscard]] void* getData() const { return m_data; }

private:
    NxSensorCallback m_callback;
    void* m_data;
};
