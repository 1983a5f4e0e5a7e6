#pragma once

/// \file
/// The base of sensors and their callback.

class NxSensor;

/// The function that a sensor calls when it triggers. `data` is the pointer that the sensor was given. The callback may
/// schedule, change or delete any sensor, the calling one included. It must not throw.
using NxSensorCallback = void (*)(void* data, NxSensor* sensor);

/// An object that calls back later: when it is scheduled, and its turn comes.
///
/// Sensors belong to the thread that owns the scene. Whoever made a sensor owns it and may destroy it at
/// any time; then it isn't called any more. Its `data` is only passed to the callback.
class NxSensor {
public:
    /// A sensor without a callback triggers without effect.
    explicit NxSensor(NxSensorCallback callback = nullptr, void* data = nullptr);
    NxSensor(const NxSensor&) = delete;
    NxSensor& operator=(const NxSensor&) = delete;

    // The virtual operations keep this order throughout the hierarchy.

    virtual ~NxSensor();
    /// Requests a call. Does nothing if the sensor is scheduled already.
    virtual void schedule() = 0;
    /// Cancels the request. Does nothing if the sensor isn't scheduled.
    virtual void unschedule() = 0;
    /// Non-zero from `schedule` until the sensor is triggered or unscheduled.
    [[nodiscard]] virtual int isScheduled() const = 0;
    /// Runs the callback now.
    virtual void trigger();

private:
    NxSensorCallback m_callback;
    void* m_data;
};
