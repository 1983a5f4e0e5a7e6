// The field classes whose values are named by an enumeration.

#include "meridane/scene/fields/detail/ListFieldText.h"
#include "meridane/scene/fields/detail/SingleFieldText.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFEnum.h"

template class meridane::SingleField<int, meridane::EnumFormat>;
template class meridane::ListField<int, meridane::EnumFormat>;

NX_FIELD_SOURCE(NxSFEnum, NxSField, "SFEnum")
NX_FIELD_SOURCE(NxSFBitMask, NxSFEnum, "SFBitMask")
NX_FIELD_SOURCE(NxMFEnum, NxMField, "MFEnum")

void NxSFEnum::setValue(const VbName& name)
{
    int value = 0;
    if (enumValueByName(name, value))
        setValue(value);
}

void NxSFEnum::getEnums(int& count, int*& values, VbName*& names) const
{
    const NxEnumeration& enumeration = format().enumeration();
    count = enumeration.count();
    values = enumeration.values();
    names = enumeration.names();
}

bool NxSFEnum::enumValueByName(const VbName& name, int& value) const
{
    return format().enumeration().valueByName(name.getString(), value);
}

void NxMFEnum::getEnums(int& count, int*& values, VbName*& names) const
{
    const NxEnumeration& enumeration = format().enumeration();
    count = enumeration.count();
    values = enumeration.values();
    names = enumeration.names();
}
