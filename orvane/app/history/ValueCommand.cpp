#include "orvane/app/history/ValueCommand.h"

#include "meridane/scene/fields/NxField.h"

#include <utility>

ValueCommand::ValueCommand(std::unique_ptr<meridane::ChangeRecord> record)
    : m_record(std::move(record))
{
}

ValueCommand::~ValueCommand() = default;

void ValueCommand::execute()
{
    m_record->field()->exchangeValue(*m_record);
}

void ValueCommand::undo()
{
    execute();
}

void ValueCommand::redo()
{
    execute();
}
