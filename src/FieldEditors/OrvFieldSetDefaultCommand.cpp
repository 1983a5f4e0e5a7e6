#include "FieldEditors/OrvFieldSetDefaultCommand.h"

#include "meridane/scene/fields/NxMField.h"

OrvFieldSetDefaultCommand::OrvFieldSetDefaultCommand(NxField* field, const NxField* defaultField)
    : m_field(field)
    , m_isMultiValue(field->isOfType(NxMField::getClassTypeId()))
{
    field->get(m_previousValue);
    defaultField->get(m_defaultValue);
}

OrvFieldSetDefaultCommand::~OrvFieldSetDefaultCommand() = default;

void OrvFieldSetDefaultCommand::execute()
{
    m_field->set(m_defaultValue);
}

void OrvFieldSetDefaultCommand::undo()
{
    m_field->set(m_previousValue);
}

void OrvFieldSetDefaultCommand::redo()
{
    execute();
}
