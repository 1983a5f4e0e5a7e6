#include "FieldEditors/OrvMFDeleteRowsCommand.h"

#include "FieldEditors/RowChanges.h"

#include "meridane/scene/fields/NxMField.h"

OrvMFDeleteRowsCommand::OrvMFDeleteRowsCommand(NxMField* field, int start, int count)
    : m_field(field)
    , m_values(std::make_unique<VbString[]>(static_cast<std::size_t>(count)))
    , m_start(start)
    , m_count(count)
{
    for (int i = 0; i < count; ++i)
        m_field->get1(start + i, m_values[static_cast<std::size_t>(i)]);
}

OrvMFDeleteRowsCommand::~OrvMFDeleteRowsCommand() = default;

void OrvMFDeleteRowsCommand::execute()
{
    if (m_deleted)
        return;
    m_field->deleteValues(m_start, m_count);
    m_deleted = true;
}

void OrvMFDeleteRowsCommand::undo()
{
    if (!orvane::openRows(*m_field, m_start, m_count))
        return;
    m_deleted = false;
    // Contract: the sensors are notified by each write, and not of the whole list as for new rows.
    for (int i = 0; i < m_count; ++i)
        m_field->set1(m_start + i, m_values[static_cast<std::size_t>(i)]);
}

void OrvMFDeleteRowsCommand::redo()
{
    execute();
}
