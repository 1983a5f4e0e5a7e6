#include "meridane/scene/nodes/NxComplexity.h"

NX_NODE_SOURCE(NxComplexity, NxNode, "Complexity",
    "The detail with which the surfaces and textures that follow in the group are drawn.")

const NxEnumeration& NxComplexity::types()
{
    static const NxEnumeration names{
        {"OBJECT_SPACE", OBJECT_SPACE}, {"SCREEN_SPACE", SCREEN_SPACE}, {"BOUNDING_BOX", BOUNDING_BOX}};
    return names;
}
