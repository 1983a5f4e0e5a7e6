#include "meridane/scene/NxNodeSensor.h"

#include "meridane/scene/NxFieldContainer.h"

NxNodeSensor::~NxNodeSensor()
{
    detach();
}

void NxNodeSensor::attach(NxFieldContainer* node)
{
    if (node == m_node)
        return;
    detach();
    if (node == nullptr)
        return;
    m_node = node;
    // At the end, so that sensors are told in the order in which they came.
    NxNodeSensor** place = &node->m_sensors;
    while (*place != nullptr)
        place = &(*place)->m_next;
    *place = this;
}

void NxNodeSensor::detach()
{
    if (m_node == nullptr)
        return;
    NxNodeSensor** place = &m_node->m_sensors;
    while (*place != this)
        place = &(*place)->m_next;
    *place = m_next;
    m_next = nullptr;
    m_node = nullptr;
    unschedule();
}

void NxNodeSensor::dyingReference()
{
    detach();
}
