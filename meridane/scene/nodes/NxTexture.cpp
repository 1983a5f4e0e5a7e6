#include "meridane/scene/nodes/NxTexture.h"

NX_NODE_SOURCE(NxTexture, NxNode, "Texture",
    "An image on the surfaces that follow in the group, placed by their texture coordinates.")

const NxEnumeration& NxTexture::wraps()
{
    static const NxEnumeration names{{"REPEAT", REPEAT}, {"CLAMP", CLAMP}};
    return names;
}

const NxEnumeration& NxTexture::roles()
{
    static const NxEnumeration names{{"COLOR", COLOR}, {"NORMAL", NORMAL}, {"METAL_ROUGHNESS", METAL_ROUGHNESS}};
    return names;
}
