#include "meridane/base/types/NxTypedObject.h"

#include "meridane/base/values/VbName.h"

NxTypedObject::~NxTypedObject() = default;

NxType NxTypedObject::getClassTypeId()
{
    static const NxType type = NxType::registerClass("TypedObject", NxType(), nullptr);
    return type;
}
