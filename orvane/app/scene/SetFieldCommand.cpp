#include "orvane/app/scene/SetFieldCommand.h"

#include "meridane/scene/fields/NxField.h"

SetFieldCommand::SetFieldCommand(NxField* field, const VbString& text)
    : m_node(field->getContainer())
    , m_field(field)
    , m_newText(text)
{
    m_field->get(m_oldText);
}

void SetFieldCommand::execute()
{
    m_field->set(m_newText);
}

void SetFieldCommand::undo()
{
    m_field->set(m_oldText);
}

void SetFieldCommand::redo()
{
    execute();
}
