#include "FieldEditors/OrvMFSetFieldValueCommand.h"

#include "meridane/scene/fields/NxMField.h"

OrvMFSetFieldValueCommand::OrvMFSetFieldValueCommand(NxMField* field, int row)
    : m_field(field)
    , m_row(row)
{
    // Contract: both texts are those of the row as it is now.
    m_field->get1(row, m_oldValue);
    m_field->get1(row, m_newValue);
}

OrvMFSetFieldValueCommand::~OrvMFSetFieldValueCommand() = default;

void OrvMFSetFieldValueCommand::execute() { }

void OrvMFSetFieldValueCommand::undo()
{
    m_field->set1(m_row, m_oldValue);
}

void OrvMFSetFieldValueCommand::redo()
{
    m_field->set1(m_row, m_newValue);
}
