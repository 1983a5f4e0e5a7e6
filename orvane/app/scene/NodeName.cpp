#include "orvane/app/scene/NodeName.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"

#include "meridane/scene/nodes/NxNode.h"

namespace orvane {

QString nodeName(const NxFieldContainer& node)
{
    if (!node.getName().isEmpty())
        return shortLine(toQString(node.getName()));
    const auto* const sceneNode = dynamic_cast<const NxNode*>(&node);
    return QString::fromUtf8(sceneNode != nullptr ? sceneNode->getClassName() : node.getTypeId().getName().getString());
}

} // namespace orvane
