#include "meridane/scene/NxSField.h"

#include "meridane/base/VbName.h"

NxType NxSField::getClassTypeId()
{
    static const NxType type = NxType::registerClass("SField", NxField::getClassTypeId(), nullptr);
    return type;
}
