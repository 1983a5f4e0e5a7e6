#include "orvane/app/fields/values/FieldWriteCommand.h"

#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/NxField.h"

#include <utility>

FieldWriteCommand::FieldWriteCommand(FieldSet fields, Write write, bool& done)
    : m_fields(std::move(fields))
    , m_write(std::move(write))
    , m_done(&done)
{
}

FieldWriteCommand::FieldWriteCommand(std::vector<std::unique_ptr<meridane::ChangeRecord>> records)
    : m_records(std::move(records))
{
}

FieldWriteCommand::~FieldWriteCommand() = default;

void FieldWriteCommand::execute()
{
    if (!m_write)
        return;
    *m_done = writeAll();
    if (!*m_done) {
        exchangeAll();
        m_records.clear();
    }
    m_write = nullptr;
    m_done = nullptr;
    m_fields = FieldSet(); // the records keep the nodes
}

bool FieldWriteCommand::writeAll()
{
    std::size_t number = 0;
    for (NxField* const field : m_fields.fields()) {
        const bool isRecorded = meridane::withinMemory(field->valueBytes(), [this, field] {
            m_records.push_back(field->recordOfValue());
            return true;
        });
        if (!isRecorded)
            return false;
        if (!m_write(*field, number)) {
            m_records.pop_back();
            return false;
        }
        ++number;
    }
    return true;
}

void FieldWriteCommand::undo()
{
    exchangeAll();
}

void FieldWriteCommand::redo()
{
    exchangeAll();
}

void FieldWriteCommand::exchangeAll()
{
    for (const auto& record : m_records)
        record->field()->exchangeValue(*record);
}
