#include "meridane/scene/nodes/NxLight.h"

NxType NxLight::getClassTypeId()
{
    static const NxType type = NxType::registerClass("Light", NxNode::getClassTypeId(), nullptr);
    return type;
}
