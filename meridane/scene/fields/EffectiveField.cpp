#include "meridane/scene/fields/EffectiveField.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"

namespace meridane {

const NxField& defaultFieldOf(const NxField& field)
{
    NxFieldContainer* const container = field.getContainer();
    if (!field.isIgnored() || container == nullptr)
        return field;
    const NxFieldData* const data = container->getFieldData();
    const NxField* const original = data->getDefault(data->getIndex(container, &field));
    return original == nullptr ? field : *original;
}

} // namespace meridane
