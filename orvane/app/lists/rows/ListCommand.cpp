#include "orvane/app/lists/rows/ListCommand.h"

#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/NxMField.h"

#include <utility>

ListCommand::ListCommand(NxMField& list, Write write, bool isJournaled)
    : m_node(list.getContainer())
    , m_list(&list)
    , m_write(std::move(write))
    , m_isJournaled(isJournaled)
{
}

ListCommand::~ListCommand() = default;

void ListCommand::execute()
{
    const auto keep = [this] {
        m_before = m_list->recordOfValue();
        return true;
    };
    if (m_isJournaled || meridane::withinMemory(m_list->valueBytes(), keep))
        m_write(*m_list);
    m_write = nullptr;
}

void ListCommand::undo()
{
    if (m_before != nullptr)
        m_list->exchangeValue(*m_before);
}

void ListCommand::redo()
{
    undo();
}
