#include "FieldEditors/FieldChanges.h"

#include "FieldEditors/OrvFieldIgnoredCommand.h"
#include "FieldEditors/OrvFieldSetDefaultCommand.h"
#include "FieldEditors/OrvMFSetFieldValueCommand.h"
#include "FieldEditors/OrvMFSetValueCommand.h"
#include "FieldEditors/OrvSFSetValueCommand.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"

namespace orvane {

void pushSetValueCommand(NxField* field)
{
    VbString none;
    pushSetValueCommand(field, none);
}

void pushSetValueCommand(NxField* field, VbString& previousValue)
{
    OrvServices::getInstance()->pushCommand(new OrvSFSetValueCommand(field, previousValue));
}

void pushSetRowCommand(NxMField* field, int row)
{
    VbString none;
    OrvServices::getInstance()->pushCommand(new OrvMFSetValueCommand(field, row, none));
}

void pushSetRowValueCommand(NxMField* field, int row)
{
    OrvServices::getInstance()->pushCommand(new OrvMFSetFieldValueCommand(field, row));
}

void setFieldIgnored(NxField* field, bool ignored)
{
    if (field == nullptr)
        return;
    field->setIgnored(ignored ? 1 : 0);
    OrvServices::getInstance()->pushCommand(new OrvFieldIgnoredCommand(field, ignored));
}

void setDefaultFieldValue(NxField* field)
{
    NxFieldContainer* const container = field != nullptr ? field->getContainer() : nullptr;
    if (container == nullptr)
        return;
    auto* const object = static_cast<NxTypedObject*>(container->getTypeId().createInstance(nullptr));
    const auto* const instance = dynamic_cast<NxFieldContainer*>(object);
    NxFieldData* const data = container->getFieldData();
    const NxField* const defaultField
        = instance != nullptr ? data->getField(instance, data->getIndex(container, field)) : nullptr;
    if (defaultField == nullptr)
        return;
    VbString text;
    defaultField->get(text);
    field->set(text);
    OrvServices::getInstance()->pushCommand(new OrvFieldSetDefaultCommand(field, defaultField));
}

} // namespace orvane
