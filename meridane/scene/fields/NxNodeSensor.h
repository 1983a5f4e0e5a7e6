#pragma once

#include "meridane/scene/fields/NxDataSensor.h"
#include "meridane/scene/fields/detail/SensorList.h"

class NxFieldContainer;

/// Watches one node: its name, all its fields and its list of children, but not what its children hold. Thread of the
/// user interface only.
class NxNodeSensor : public NxDataSensor {
public:
    /// `callback` is called from the delay queue with `data` and the sensor.
    using NxDataSensor::NxDataSensor;
    /// Detaches the sensor and takes it off the queue.
    ~NxNodeSensor() override;

    /// Starts watching a node, null for none; a node attached before is given up. It doesn't hold the node alive.
    void attach(NxFieldContainer* node);
    /// Stops watching and takes the sensor off the queue; does nothing when it isn't attached.
    void detach();
    /// The watched node, or null.
    [[nodiscard]] NxFieldContainer* getAttachedNode() const noexcept { return m_node; }

    void dyingReference() override;

private:
    friend class meridane::SensorList<NxNodeSensor>;

    NxFieldContainer* m_node = nullptr;
    NxNodeSensor* m_next = nullptr; // of the sensors on the same node
};
