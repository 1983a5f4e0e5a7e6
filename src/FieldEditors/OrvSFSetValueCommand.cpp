#include "FieldEditors/OrvSFSetValueCommand.h"

#include "meridane/scene/fields/NxField.h"

OrvSFSetValueCommand::OrvSFSetValueCommand(NxField* field, VbString& previousValue)
    : m_field(field)
{
    if (!previousValue.isEmpty()) {
        m_oldValue = previousValue;
        previousValue.makeNull();
    } else {
        m_field->get(m_oldValue);
    }
}

OrvSFSetValueCommand::~OrvSFSetValueCommand() = default;

void OrvSFSetValueCommand::execute()
{
    m_field->get(m_newValue);
}

void OrvSFSetValueCommand::undo()
{
    m_field->set(m_oldValue);
}

void OrvSFSetValueCommand::redo()
{
    m_field->set(m_newValue);
}
