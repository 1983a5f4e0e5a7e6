#include "orvane/app/history/PastState.h"

#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/journal/JournalStep.h"

#include <algorithm>

using meridane::ChangeRecord;

PastState::PastState(const History& history, const StepPlace& place, int position, std::size_t mostRecords)
{
    collect(history, place, position);
    if (m_records.size() > mostRecords || !doFit())
        return;
    m_isReached = true;
    for (ChangeRecord* record : m_records) {
        if (record->kind() == ChangeRecord::Kind::Rows)
            record->exchange();
        else
            record->show();
    }
}

PastState::~PastState()
{
    if (!m_isReached)
        return;
    std::for_each(m_records.rbegin(), m_records.rend(), [](ChangeRecord* record) {
        if (record->kind() == ChangeRecord::Kind::Rows)
            record->exchange();
        else
            record->show();
    });
}

// A record of a done step, or of the open one, leads to the state before it. One of a step that can be redone leads to
// the state after it.
void PastState::collect(const History& history, const StepPlace& place, int position)
{
    const auto addAll
        = [&](auto begin, auto end) { std::for_each(begin, end, [&](const auto& record) { add(*record, place); }); };
    const auto open = history.journal.records();
    addAll(open.rbegin(), open.rend());
    const int present = history.steps.position();
    if (position <= present) {
        const std::vector<int> steps = history.index.find(place, position, present);
        std::for_each(steps.rbegin(), steps.rend(), [&](int step) {
            const auto records = history.steps.changes(step)->records();
            addAll(records.rbegin(), records.rend());
        });
    } else {
        for (const int step : history.index.find(place, present, position)) {
            const auto records = history.steps.changes(step)->records();
            addAll(records.begin(), records.end());
        }
    }
}

void PastState::add(ChangeRecord& record, const StepPlace& place)
{
    if (StepPlace::of(record) != place)
        return;
    // Whatever led to this state doesn't matter where it is recorded as a whole.
    if (record.kind() != ChangeRecord::Kind::Rows)
        m_records.clear();
    m_records.push_back(&record);
}

bool PastState::doFit() const
{
    if (m_records.empty() || m_records.back()->kind() != ChangeRecord::Kind::Rows)
        return true;
    auto length = static_cast<std::size_t>(dynamic_cast<const NxMField&>(*m_records.back()->field()).getNum());
    for (const ChangeRecord* record : m_records) {
        const ChangeRecord::Extent extent = record->extent();
        if (record->kind() != ChangeRecord::Kind::Rows) {
            length = extent.recorded;
            continue;
        }
        if (extent.start + extent.present > length)
            return false;
        length += extent.recorded;
        length -= extent.present;
    }
    return true;
}
