#include "meridane/scene/nodes/NxNode.h"

#include "meridane/base/values/VbName.h"

NxType NxNode::getClassTypeId()
{
    static const NxType type = NxType::registerClass("Node", NxFieldContainer::getClassTypeId(), nullptr);
    return type;
}

const char* NxNode::getClassName() const
{
    return getTypeId().getName().getString();
}
