#pragma once

#include "meridane/scene/fields/NxDataSensor.h"
#include "meridane/scene/fields/detail/SensorList.h"

class NxField;

/// Watches one field: its value and its ignored flag. Thread of the user interface only.
class NxFieldSensor : public NxDataSensor {
public:
    /// `callback` is called from the delay queue with `data` and the sensor.
    using NxDataSensor::NxDataSensor;
    /// Detaches the sensor and removes it from the queue.
    ~NxFieldSensor() override;

    /// Watches a field, or none if null, instead of the one attached before. Attaching itself doesn't notify.
    void attach(NxField* field);
    /// Stops watching and removes the sensor from the queue; does nothing if it isn't attached.
    void detach();
    /// The watched field, or null.
    [[nodiscard]] NxField* getAttachedField() const noexcept { return m_field; }

    void dyingReference() override;

private:
    friend class meridane::SensorList<NxFieldSensor>;

    NxField* m_field = nullptr;
    NxFieldSensor* m_next = nullptr; // of the sensors on the same field
};
