#include "FieldEditors/OrvMFSwapRowsCommand.h"

#include "FieldEditors/RowChanges.h"

#include "meridane/scene/fields/NxMField.h"

OrvMFSwapRowsCommand::OrvMFSwapRowsCommand(NxMField* field, int first, int second)
    : m_field(field)
    , m_first(first)
    , m_second(second)
{
}

OrvMFSwapRowsCommand::~OrvMFSwapRowsCommand() = default;

void OrvMFSwapRowsCommand::execute()
{
    orvane::swapRowTexts(*m_field, m_first, m_second);
}

void OrvMFSwapRowsCommand::undo()
{
    execute();
}

void OrvMFSwapRowsCommand::redo()
{
    execute();
}
