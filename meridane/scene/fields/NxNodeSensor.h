#pragma once

#include "meridane/scene/fields/NxDataSensor.h"
#include "meridane/scene/fields/detail/SensorList.h"

class NxFieldContainer;

/// Watches one node: its name, all its fields and its list of children, but not the contents of its children. Thread of
/// the user interface only.
class NxNodeSensor : public NxDataSensor {
public:
    /// `callback` is called from the delay queue with `data` and the sensor.
    using NxDataSensor::NxDataSensor;
    /// Detaches the sensor and removes it from the queue.
    ~NxNodeSensor() override;

    /// Watches a node, or none if null, instead of the one attached before. It holds no reference to the node.
    void attach(NxFieldContainer* node);
    /// Stops watching and removes the sensor from the queue; does nothing if it isn't attached.
    void detach();
    /// The watched node, or null.
    [[nodiscard]] NxFieldContainer* getAttachedNode() const noexcept { return m_node; }

    void dyingReference() override;

private:
    friend class meridane::SensorList<NxNodeSensor>;

    NxFieldContainer* m_node = nullptr;
    NxNodeSensor* m_next = nullptr; // of the sensors on the same node
};
