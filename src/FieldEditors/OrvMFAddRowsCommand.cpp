#include "FieldEditors/OrvMFAddRowsCommand.h"

#include "FieldEditors/RowChanges.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxMField.h"

OrvMFAddRowsCommand::OrvMFAddRowsCommand(NxMField* field, int start, int count)
    : m_field(field)
    , m_start(start)
    , m_count(count)
{
}

OrvMFAddRowsCommand::~OrvMFAddRowsCommand() = default;

void OrvMFAddRowsCommand::execute()
{
    m_added = orvane::openRows(*m_field, m_start, m_count);
    if (m_added) {
        // Contract: every kind of list gets this text. Strings become empty; most others refuse it and keep the value
        // of the new row.
        const VbString empty("\"\"");
        for (int row = m_start; row < m_start + m_count; ++row)
            m_field->set1(row, empty);
    }
    m_field->valueChanged(0, m_field->getNum(), 1);
}

void OrvMFAddRowsCommand::undo()
{
    if (m_added)
        m_field->deleteValues(m_start, m_count);
}

void OrvMFAddRowsCommand::redo()
{
    execute();
}
