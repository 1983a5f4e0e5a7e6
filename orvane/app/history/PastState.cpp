#include "orvane/app/history/PastState.h"

#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/journal/JournalStep.h"

#include <algorithm>

using meridane::ChangeRecord;

namespace {

void exchange(ChangeRecord* record)
{
    // A list is in the state that the record of its rows belongs to.
    if (record->kind() == ChangeRecord::Kind::Rows)
        record->exchange();
    else
        record->show();
}

} // namespace

PastState::PastState(const History& history, const StepPlace& place, int position, std::size_t mostRecords)
{
    collect(history, place, position, mostRecords);
    if (m_records.size() > mostRecords || !doFit())
        return;
    m_isReached = true;
    std::for_each(m_records.rbegin(), m_records.rend(), exchange);
}

PastState::~PastState()
{
    if (m_isReached)
        std::for_each(m_records.begin(), m_records.end(), exchange);
}

// A record of a done step, or of the open one, leads to the state before it. One of a step that can be redone leads to
// the state after it. On the way from the past, nothing beyond a whole value matters.
void PastState::collect(const History& history, const StepPlace& place, int position, std::size_t mostRecords)
{
    const auto addAll = [&](auto begin, auto end) {
        return std::all_of(begin, end, [&](const auto& record) { return add(place, *record); });
    };
    const int present = history.steps.position();
    bool goesOn = true;
    for (int step = position; goesOn && position <= present && m_records.size() <= mostRecords; ++step) {
        step = history.index.findFirst(place, step, present);
        if (step < 0)
            break;
        const auto records = history.steps.changes(step)->records();
        goesOn = addAll(records.begin(), records.end());
    }
    for (int step = position; goesOn && position > present && m_records.size() <= mostRecords;) {
        step = history.index.findLast(place, present, step);
        if (step < 0)
            break;
        const auto records = history.steps.changes(step)->records();
        goesOn = addAll(records.rbegin(), records.rend());
    }
    const auto open = history.journal.records();
    if (goesOn)
        addAll(open.begin(), open.end());
}

// Returns whether the next records matter, too.
bool PastState::add(const StepPlace& place, ChangeRecord& record)
{
    if (StepPlace::of(record) != place)
        return true;
    m_records.push_back(&record);
    return record.kind() == ChangeRecord::Kind::Rows;
}

bool PastState::doFit() const
{
    if (m_records.empty() || m_records.front()->kind() != ChangeRecord::Kind::Rows)
        return true;
    auto length = static_cast<std::size_t>(dynamic_cast<const NxMField&>(*m_records.front()->field()).getNum());
    return std::all_of(m_records.rbegin(), m_records.rend(), [&length](const ChangeRecord* record) {
        const ChangeRecord::Extent extent = record->extent();
        const bool isWhole = record->kind() != ChangeRecord::Kind::Rows;
        const bool fits = isWhole || extent.start + extent.present <= length;
        length = isWhole ? extent.recorded : length + extent.recorded - extent.present;
        return fits;
    });
}
