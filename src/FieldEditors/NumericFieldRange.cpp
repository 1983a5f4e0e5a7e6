#include "FieldEditors/NumericFieldRange.h"

#include "FieldEditors/FieldRangeTable.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMaterial.h"

namespace {

bool hasUnitRange(const NxFieldContainer* container)
{
    return container != nullptr
        && (container->isOfType(NxComplexity::getClassTypeId()) || container->isOfType(NxMaterial::getClassTypeId())
            || container->isOfType(NxDirectionalLight::getClassTypeId()));
}

} // namespace

FieldRange orvane::realFieldRange(const NxField& field, const char* plainRow)
{
    return hasUnitRange(field.getContainer()) ? FieldRangeTable::lookup("Complexity", "value")
                                              : FieldRangeTable::lookup("DefaultNode", plainRow);
}

FieldRange orvane::integerFieldRange()
{
    return FieldRangeTable::lookup("DefaultNode", "intField");
}
