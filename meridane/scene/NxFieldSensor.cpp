#include "meridane/scene/NxFieldSensor.h"

#include "meridane/scene/NxField.h"

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
    // At the end, so that sensors are told in the order in which they came.
    NxFieldSensor** place = &field->m_sensors;
    while (*place != nullptr)
        place = &(*place)->m_next;
    *place = this;
}

void NxFieldSensor::detach()
{
    if (m_field == nullptr)
        return;
    NxFieldSensor** place = &m_field->m_sensors;
    while (*place != this)
        place = &(*place)->m_next;
    *place = m_next;
    m_next = nullptr;
    m_field = nullptr;
    unschedule();
}

void NxFieldSensor::dyingReference()
{
    detach();
}
