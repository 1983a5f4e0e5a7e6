#include "FieldEditors/OrvMFSetValueCommand.h"

#include "meridane/scene/fields/NxMField.h"

OrvMFSetValueCommand::OrvMFSetValueCommand(NxMField* field, int row, VbString& previousValue)
    : m_field(field)
    , m_row(row)
{
    if (!previousValue.isEmpty()) {
        m_oldValue = previousValue;
        previousValue.makeNull();
    } else {
        m_field->get1(row, m_oldValue);
    }
}

OrvMFSetValueCommand::~OrvMFSetValueCommand() = default;

void OrvMFSetValueCommand::execute()
{
    m_field->get1(m_row, m_newValue);
}

void OrvMFSetValueCommand::undo()
{
    m_field->set1(m_row, m_oldValue);
}

void OrvMFSetValueCommand::redo()
{
    m_field->set1(m_row, m_newValue);
}
