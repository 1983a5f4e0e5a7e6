#include "meridane/scene/nodes/NxUnknownNode.h"

#include <utility>

NX_NODE_SOURCE(
    NxUnknownNode, NxGroup, "UnknownNode", "Stands for a node whose class isn't known here, and keeps all of it.")

void NxUnknownNode::setClassName(std::string name)
{
    m_className = std::move(name);
}
