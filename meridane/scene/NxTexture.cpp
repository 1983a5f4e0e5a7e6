#include "meridane/scene/NxTexture.h"

NX_NODE_SOURCE(NxTexture, NxNode, "Texture")

const NxEnumeration& NxTexture::wraps()
{
    static const NxEnumeration names{{"REPEAT", REPEAT}, {"CLAMP", CLAMP}};
    return names;
}
