#include "meridane/scene/nodes/NxUnknownNode.h"

#include <utility>

NX_NODE_SOURCE(NxUnknownNode, NxGroup, "UnknownNode")

void NxUnknownNode::setClassName(std::string name)
{
    m_className = std::move(name);
}
