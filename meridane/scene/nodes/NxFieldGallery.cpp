#include "meridane/scene/nodes/NxFieldGallery.h"

NX_NODE_SOURCE(NxFieldGallery, NxNode, "FieldGallery",
    "Has one field of every field class to try editors with, and draws nothing.")

// Defined here and not inline, because there are many fields.
NxFieldGallery::NxFieldGallery() = default;
NxFieldGallery::~NxFieldGallery() = default;

const NxEnumeration& NxFieldGallery::qualities()
{
    static const NxEnumeration names{{"LOW", LOW}, {"MEDIUM", MEDIUM}, {"HIGH", HIGH}, {"ULTRA", ULTRA}};
    return names;
}

const NxEnumeration& NxFieldGallery::traits()
{
    static const NxEnumeration names{{"VISIBLE", VISIBLE}, {"PICKABLE", PICKABLE}, {"CASTS_SHADOW", CASTS_SHADOW},
        {"LOCKED", LOCKED}, {"HIGHLIGHTED", HIGHLIGHTED}};
    return names;
}
