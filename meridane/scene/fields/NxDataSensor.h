#pragma once

#include "meridane/base/NxDelayQueueSensor.h"

/// A sensor that watches an object of the scene. A change schedules it on the delay queue, once, however many changes
/// follow before the queue is processed; so its callback never runs inside the call that made the change.
class NxDataSensor : public NxDelayQueueSensor {
public:
    /// Takes the callback and its data, or none.
    using NxDelayQueueSensor::NxDelayQueueSensor;

    /// Called on each change of the watched object: schedules the sensor. An override must not attach,
    /// detach or destroy sensors of the object.
    virtual void notify();
    /// Called when the watched object is being destroyed: detaches the sensor.
    virtual void dyingReference() = 0;
};
