#include "meridane/scene/nodes/NxTexture.h"

NX_NODE_SOURCE(NxTexture, NxNode, "Texture")

const NxEnumeration& NxTexture::wraps()
{
    static const NxEnumeration names{{"REPEAT", REPEAT}, {"CLAMP", CLAMP}};
    return names;
}
