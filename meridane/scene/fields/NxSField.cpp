#include "meridane/scene/fields/NxSField.h"

#include "meridane/base/values/VbName.h"

NxType NxSField::getClassTypeId()
{
    static const NxType type = NxType::registerClass("SField", NxField::getClassTypeId(), nullptr);
    return type;
}
