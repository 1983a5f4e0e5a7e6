#include "meridane/base/NxTypedObject.h"

#include "meridane/base/VbName.h"

NxTypedObject::~NxTypedObject() = default;

NxType NxTypedObject::getClassTypeId()
{
    static const NxType type = NxType::registerClass("TypedObject", NxType(), nullptr);
    return type;
}
