#include "FieldEditors/OrvFieldIgnoredCommand.h"

#include "meridane/scene/fields/NxField.h"

OrvFieldIgnoredCommand::OrvFieldIgnoredCommand(NxField* field, bool ignored)
    : m_field(field)
    , m_ignored(ignored)
{
}

OrvFieldIgnoredCommand::~OrvFieldIgnoredCommand() = default;

void OrvFieldIgnoredCommand::execute()
{
    m_field->setIgnored(m_ignored ? 1 : 0);
}

void OrvFieldIgnoredCommand::undo()
{
    m_field->setIgnored(m_ignored ? 0 : 1);
}

void OrvFieldIgnoredCommand::redo()
{
    execute();
}
