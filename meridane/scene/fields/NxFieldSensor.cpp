#include "meridane/scene/fields/NxFieldSensor.h"

#include "meridane/scene/fields/NxField.h"

NxFieldSensor::~NxFieldSensor()
{
    detach();
}

void NxFieldSensor::attach(NxField* field)
{
    if (field == m_field)
        return;
    detach();
    if (field == nullptr)
        return;
    m_field = field;
    field->m_sensors.append(this);
}

void NxFieldSensor::detach()
{
    if (m_field == nullptr)
        return;
    m_field->m_sensors.remove(this);
    m_field = nullptr;
    unschedule();
}

void NxFieldSensor::dyingReference()
{
    detach();
}
