#include "meridane/scene/journal/JournalStep.h"

#include "meridane/scene/journal/detail/PlaceSnapshots.h"
#include "meridane/scene/journal/detail/StepRecords.h"

#include <set>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace meridane {

namespace {

std::size_t bytesOf(const JournalStep::Records& records)
{
    std::size_t bytes = 0;
    for (const auto& record : records)
        bytes += sizeof(record) + record->bytes();
    return bytes;
}

/// Places that one record holds as a whole, so that a second one adds nothing.
class WholePlaces {
public:
    /// Returns false if the place of the record is known already.
    bool add(const ChangeRecord& record)
    {
        const ChangeRecord::Kind kind = record.kind();
        if (kind == ChangeRecord::Kind::Rows)
            return !hasValue(record) && addRows(record);
        return kind == ChangeRecord::Kind::Children || m_places.emplace(kind, &record.node(), record.field()).second;
    }

private:
    [[nodiscard]] bool hasValue(const ChangeRecord& record) const
    {
        return m_places.contains({ChangeRecord::Kind::Value, &record.node(), record.field()});
    }
    bool addRows(const ChangeRecord& record)
    {
        if (record.growth() != 0)
            m_rows.erase(record.field()); // they have moved
        const ChangeRecord::Extent extent = record.extent();
        return record.growth() != 0 || extent.present != 1 || m_rows[record.field()].insert(extent.start).second;
    }

    std::set<std::tuple<ChangeRecord::Kind, const NxFieldContainer*, const NxField*>> m_places;
    std::unordered_map<const NxField*, std::unordered_set<std::size_t>> m_rows; // single ones
};

} // namespace

JournalStep::JournalStep(Records records)
    : m_records(std::move(records))
    , m_bytes(bytesOf(m_records))
{
}

JournalStep::~JournalStep() = default;

void JournalStep::undo()
{
    StepRecords::moveBack(m_records);
    StepRecords::notify(m_records);
}

void JournalStep::redo()
{
    StepRecords::moveForward(m_records);
    StepRecords::notify(m_records);
}

bool JournalStep::append(JournalStep&& next)
{
    WholePlaces places;
    for (const auto& record : m_records)
        places.add(*record);
    for (auto& record : next.m_records) {
        if (places.add(*record))
            m_records.push_back(std::move(record));
    }
    next.m_records.clear();
    StepRecords::removeUnchanged(m_records);
    m_bytes = bytesOf(m_records);
    return !m_records.empty();
}

bool JournalStep::isReversedBy(const JournalStep& next) const
{
    PlaceSnapshots present;
    present.add(m_records);
    present.add(next.m_records);
    StepRecords::undo(next.m_records);
    StepRecords::undo(m_records);
    const bool same = present.areSameAsNow();
    StepRecords::redo(m_records);
    StepRecords::redo(next.m_records);
    return same;
}

} // namespace meridane
