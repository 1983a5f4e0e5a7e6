#include "meridane/scene/fields/NxNodeSensor.h"

#include "meridane/scene/fields/NxFieldContainer.h"

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
    node->rare().sensors.append(this);
    m_node = node; // after the list has allocated its memory
}

void NxNodeSensor::detach()
{
    if (m_node == nullptr)
        return;
    m_node->rare().sensors.remove(this);
    m_node = nullptr;
    unschedule();
}

void NxNodeSensor::dyingReference()
{
    detach();
}
