#include "meridane/scene/nodes/NxTexture.h"

#include "meridane/scene/fields/EffectiveField.h"

NX_NODE_SOURCE(NxTexture, NxNode, "Texture",
    "An image on the surfaces that follow in the group, placed by their texture coordinates.")

NxTexture::Role NxTexture::effectiveRole() const
{
    const int value = meridane::effectiveField(role).getValue();
    return value == NORMAL || value == METAL_ROUGHNESS ? static_cast<Role>(value) : COLOR;
}

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
