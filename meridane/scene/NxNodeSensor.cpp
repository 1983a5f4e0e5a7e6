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
    node->rare().sensors.append(this);
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
