#include "meridane/scene/nodes/NxCamera.h"

NxType NxCamera::getClassTypeId()
{
    static const NxType type = NxType::registerClass("Camera", NxNode::getClassTypeId(), nullptr);
    return type;
}
