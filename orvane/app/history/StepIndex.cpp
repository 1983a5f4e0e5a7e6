#include "orvane/app/history/StepIndex.h"

#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/journal/JournalStep.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

// Records that are read between two looks at the clock.
constexpr std::size_t recordsPerLook = 256;
// The index is made again when it holds more entries of steps that are gone than this, and than of others.
constexpr std::size_t mostStale = 1000;

} // namespace

std::optional<StepPlace> StepPlace::of(const meridane::ChangeRecord& record)
{
    using Kind = meridane::ChangeRecord::Kind;
    switch (record.kind()) {
    case Kind::Value:
    case Kind::Rows:
        return StepPlace{Kind::Value, record.field()};
    case Kind::Ignored:
        return StepPlace{Kind::Ignored, record.field()};
    case Kind::Name:
        return StepPlace{Kind::Name, &record.node()};
    case Kind::Children:
        break;
    }
    return std::nullopt;
}

std::size_t StepIndex::Hash::operator()(const StepPlace& place) const noexcept
{
    return std::hash<const void*>()(place.owner) ^ static_cast<std::size_t>(place.kind);
}

StepIndex::StepIndex(const OrvStepList& steps)
    : m_steps(steps)
{
}

void StepIndex::follow(int dropped, int first)
{
    const std::size_t gone = std::min(static_cast<std::size_t>(dropped), m_counts.size());
    m_staleCount += std::accumulate(m_counts.begin(), m_counts.begin() + static_cast<std::ptrdiff_t>(gone), 0U);
    m_counts.erase(m_counts.begin(), m_counts.begin() + static_cast<std::ptrdiff_t>(gone));
    m_dropped += dropped;
    forgetAfter(static_cast<std::size_t>(first));
    if (m_staleCount > std::max(mostStale, m_entryCount / 2))
        startAgain();
}

void StepIndex::forgetAfter(std::size_t steps)
{
    while (m_counts.size() > steps) {
        m_staleCount += m_counts.back();
        m_counts.pop_back();
        m_nextRecord = 0;
    }
}

void StepIndex::startAgain()
{
    m_entries.clear();
    m_counts.clear();
    m_nextRecord = 0;
    m_entryCount = 0;
    m_staleCount = 0;
}

bool StepIndex::isComplete() const
{
    return m_counts.size() == static_cast<std::size_t>(m_steps.count()) && m_nextRecord == 0;
}

bool StepIndex::run(const meridane::WorkBudget& budget)
{
    while (!isComplete()) {
        if (readStep(budget))
            return true;
    }
    return false;
}

// Returns true if time is up.
bool StepIndex::readStep(const meridane::WorkBudget& budget)
{
    if (m_nextRecord == 0)
        m_counts.push_back(0);
    const auto* const changes = m_steps.changes(static_cast<int>(m_counts.size()) - 1);
    const std::size_t count = changes != nullptr ? changes->records().size() : 0;
    const std::size_t end = std::min(count, m_nextRecord + recordsPerLook);
    for (; m_nextRecord < end; ++m_nextRecord) {
        if (const auto place = StepPlace::of(*changes->records()[m_nextRecord]))
            add(*place);
    }
    if (m_nextRecord == count)
        m_nextRecord = 0;
    return budget.isSpent();
}

void StepIndex::add(const StepPlace& place)
{
    const int index = static_cast<int>(m_counts.size()) - 1;
    const Entry entry{m_dropped + index, m_steps.number(index)};
    std::vector<Entry>& entries = m_entries[place];
    while (!entries.empty() && entries.back().place >= entry.place) {
        if (entries.back().number == entry.number)
            return; // several records of one place
        entries.pop_back();
    }
    entries.push_back(entry);
    ++m_entryCount;
    ++m_counts.back();
}

int StepIndex::findFirst(const StepPlace& place, int begin, int end) const
{
    const auto entries = entriesOf(place, begin, end);
    const auto found
        = std::find_if(entries.begin(), entries.end(), [this](const Entry& entry) { return isThere(entry); });
    return found != entries.end() ? indexOf(*found) : -1;
}

int StepIndex::findLast(const StepPlace& place, int begin, int end) const
{
    const auto entries = entriesOf(place, begin, end);
    const auto found
        = std::find_if(entries.rbegin(), entries.rend(), [this](const Entry& entry) { return isThere(entry); });
    return found != entries.rend() ? indexOf(*found) : -1;
}

std::span<const StepIndex::Entry> StepIndex::entriesOf(const StepPlace& place, int begin, int end) const
{
    const auto known = m_entries.find(place);
    if (known == m_entries.end())
        return {};
    const auto find = [&](int step) {
        return std::lower_bound(known->second.begin(), known->second.end(), m_dropped + step,
            [](const Entry& entry, std::int64_t number) { return entry.place < number; });
    };
    return {find(begin), find(end)};
}

// The step may be gone, and another one in its place.
bool StepIndex::isThere(const Entry& entry) const
{
    const int index = indexOf(entry);
    return index < static_cast<int>(m_counts.size()) && m_steps.number(index) == entry.number;
}
