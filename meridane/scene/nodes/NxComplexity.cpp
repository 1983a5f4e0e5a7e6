#include "meridane/scene/nodes/NxComplexity.h"

NX_NODE_SOURCE(NxComplexity, NxNode, "Complexity")

const NxEnumeration& NxComplexity::types()
{
    static const NxEnumeration names{
        {"OBJECT_SPACE", OBJECT_SPACE}, {"SCREEN_SPACE", SCREEN_SPACE}, {"BOUNDING_BOX", BOUNDING_BOX}};
    return names;
}
