#include "orvane/app/fields/values/IgnoreCommand.h"

#include "meridane/scene/fields/NxField.h"

#include <utility>

IgnoreCommand::IgnoreCommand(FieldSet fields, bool ignored)
    : m_fields(std::move(fields))
    , m_ignored(ignored)
{
    for (const NxField* const field : m_fields.fields())
        m_before.push_back(field->isIgnored());
}

void IgnoreCommand::execute()
{
    for (NxField* const field : m_fields.fields())
        field->setIgnored(m_ignored ? 1 : 0);
}

void IgnoreCommand::undo()
{
    std::size_t number = 0;
    for (NxField* const field : m_fields.fields())
        field->setIgnored(m_before[number++] ? 1 : 0);
}

void IgnoreCommand::redo()
{
    execute();
}
