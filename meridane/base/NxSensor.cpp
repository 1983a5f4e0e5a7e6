#include "meridane/base/NxSensor.h"

NxSensor::NxSensor(NxSensorCallback callback, void* data)
    : m_callback(callback)
    , m_data(data)
{
}

NxSensor::~NxSensor() = default;

void NxSensor::trigger()
{
    if (m_callback != nullptr)
        m_callback(m_data, this); // the sensor may be gone when this returns
}
