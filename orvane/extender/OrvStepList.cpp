#include "orvane/extender/OrvStepList.h"

#include "orvane/extender/detail/OrvHistory.h"

OrvStepList::OrvStepList(const OrvHistory& history)
    : m_history(history)
{
}

OrvStepList::~OrvStepList() = default;

int OrvStepList::count() const
{
    return static_cast<int>(m_history.steps().size());
}

int OrvStepList::position() const
{
    return static_cast<int>(m_history.position());
}

bool OrvStepList::isSavedAt(int position) const
{
    return m_history.isCleanAt(static_cast<std::size_t>(position));
}

bool OrvStepList::hasDropped() const
{
    return m_history.hasDropped();
}

std::size_t OrvStepList::bytes() const
{
    return m_history.bytes();
}

std::size_t OrvStepList::limit() const
{
    return m_history.limit();
}

QString OrvStepList::label(int index) const
{
    return step(index).label();
}

NxType OrvStepList::nodeType(int index) const
{
    return step(index).nodeType();
}

std::chrono::system_clock::time_point OrvStepList::time(int index) const
{
    return step(index).time();
}

const meridane::JournalStep* OrvStepList::changes(int index) const
{
    return step(index).changes();
}

std::uint64_t OrvStepList::number(int index) const
{
    return step(index).state();
}

const HistoryStep& OrvStepList::step(int index) const
{
    return *m_history.steps()[static_cast<std::size_t>(index)];
}
