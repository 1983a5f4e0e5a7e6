#include "meridane/scene/journal/detail/StepRecords.h"

#include "meridane/scene/fields/ChangeRecorder.h"
#include "meridane/scene/journal/detail/PlaceSnapshots.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace meridane::StepRecords {

namespace {

using View = std::span<const std::unique_ptr<ChangeRecord>>;

/// What the rows or the children of a record belong to: the list or the group.
const void* ownerOf(const ChangeRecord& record)
{
    return record.field() != nullptr ? static_cast<const void*>(record.field()) : &record.node();
}

/// Whether it is about a part of a list or of a group's children.
bool isPart(const ChangeRecord& record)
{
    return record.kind() == ChangeRecord::Kind::Rows || record.kind() == ChangeRecord::Kind::Children;
}

bool mayBeInSequence(const ChangeRecord& record)
{
    return isPart(record) || record.kind() == ChangeRecord::Kind::Value;
}

void exchangeNoted(ChangeRecord& record)
{
    if (ChangeRecorder* const recorder = ChangeRecorder::attached())
        recorder->noteExchange(record);
    record.exchange();
}

/// The records of one list or group whose rows or children have moved, or were written together, so that they can't be
/// judged one by one.
struct Sequence {
    std::vector<ChangeRecord*> records;
    std::ptrdiff_t growth = 0;
    bool isReplaced = false; // as a whole, after some rows had changed
};

using Sequences = std::unordered_map<const void*, Sequence>;

Sequences findSequences(View records)
{
    Sequences sequences;
    std::unordered_set<const void*> lists;
    for (const auto& record : records) {
        const void* const owner = ownerOf(*record);
        if (isPart(*record)) {
            lists.insert(owner);
            if (record->growth() != 0 || record->extent().present != 1)
                sequences.try_emplace(owner);
        } else if (record->kind() == ChangeRecord::Kind::Value && lists.contains(owner)) {
            sequences[owner].isReplaced = true;
        }
    }
    if (sequences.empty())
        return sequences;
    for (const auto& record : records) {
        const auto found = mayBeInSequence(*record) ? sequences.find(ownerOf(*record)) : sequences.end();
        if (found != sequences.end()) {
            found->second.records.push_back(record.get());
            found->second.growth += record->growth();
        }
    }
    return sequences;
}

/// Whether the list or group differs from its state before the records. Goes back to that state for a moment, which
/// nobody is notified of.
bool isChanged(const Sequence& sequence)
{
    if (sequence.growth != 0 && !sequence.isReplaced)
        return true;
    if (sequence.records.size() == 1)
        return !sequence.records.front()->isSameAsNow();
    PlaceSnapshots present;
    present.add(*sequence.records.front());
    std::for_each(sequence.records.rbegin(), sequence.records.rend(), [](ChangeRecord* record) { record->exchange(); });
    const bool same = present.areSameAsNow();
    for (ChangeRecord* record : sequence.records)
        record->exchange();
    return !same;
}

/// Judges the records of a step.
class Judge {
public:
    explicit Judge(View records)
    {
        for (auto& [owner, sequence] : findSequences(records))
            m_isChanged.emplace(owner, StepRecords::isChanged(sequence));
    }

    [[nodiscard]] bool isChanged(const ChangeRecord& record) const
    {
        if (!m_isChanged.empty() && mayBeInSequence(record)) {
            const auto found = m_isChanged.find(ownerOf(record));
            if (found != m_isChanged.end())
                return found->second;
        }
        return !record.isSameAsNow();
    }

private:
    std::unordered_map<const void*, bool> m_isChanged;
};

} // namespace

void undo(View records)
{
    std::for_each(records.rbegin(), records.rend(), [](const auto& record) { record->exchange(); });
}

void redo(View records)
{
    for (const auto& record : records)
        record->exchange();
}

void moveBack(View records)
{
    std::for_each(records.rbegin(), records.rend(), [](const auto& record) { exchangeNoted(*record); });
}

void moveForward(View records)
{
    for (const auto& record : records)
        exchangeNoted(*record);
}

void notify(View records)
{
    if (records.size() == 1) {
        records.front()->notify();
        return;
    }
    // The rows of a list come in many records. A name and the children of a group share their observers.
    std::unordered_set<const void*> notified;
    for (const auto& record : records) {
        if (notified.insert(ownerOf(*record)).second)
            record->notify();
    }
}

bool haveChanges(View records)
{
    const Judge judge(records);
    return std::ranges::any_of(records, [&judge](const auto& record) { return judge.isChanged(*record); });
}

void removeUnchanged(Records& records)
{
    const Judge judge(records);
    std::erase_if(records, [&judge](const auto& record) { return !judge.isChanged(*record); });
}

} // namespace meridane::StepRecords
