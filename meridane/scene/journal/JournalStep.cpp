#include "meridane/scene/journal/JournalStep.h"

#include "meridane/scene/journal/detail/PlaceSnapshots.h"
#include "meridane/scene/journal/detail/StepRecords.h"

#include <set>
#include <span>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace meridane {

namespace {

std::size_t bytesOf(std::span<const std::unique_ptr<ChangeRecord>> records)
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
{
    set(std::move(records));
}

JournalStep::~JournalStep() = default;

void JournalStep::undo()
{
    StepRecords::moveBack(records());
    StepRecords::notify(records());
}

void JournalStep::redo()
{
    StepRecords::moveForward(records());
    StepRecords::notify(records());
}

bool JournalStep::takeMove(std::unique_ptr<ChangeRecord>& record)
{
    if (m_only == nullptr)
        return false;
    auto& own = m_only;
    const bool isWhole = own->kind() != ChangeRecord::Kind::Rows && own->kind() != ChangeRecord::Kind::Children;
    const bool isSamePlace
        = own->kind() == record->kind() && own->field() == record->field() && &own->node() == &record->node();
    if (!isWhole || !isSamePlace || !own->isSameAsNow())
        return false;
    // It recorded the state on the other side of the step.
    own = std::move(record);
    own->notify();
    return true;
}

bool JournalStep::append(JournalStep&& next)
{
    WholePlaces places;
    for (const auto& record : records())
        places.add(*record);
    Records all = take();
    for (auto& record : next.take()) {
        if (places.add(*record))
            all.push_back(std::move(record));
    }
    StepRecords::removeUnchanged(all);
    set(std::move(all));
    return !records().empty();
}

bool JournalStep::isReversedBy(const JournalStep& next) const
{
    PlaceSnapshots present;
    present.add(records());
    present.add(next.records());
    StepRecords::undo(next.records());
    StepRecords::undo(records());
    const bool same = present.areSameAsNow();
    StepRecords::redo(records());
    StepRecords::redo(next.records());
    return same;
}

void JournalStep::set(Records records)
{
    m_bytes = bytesOf(records);
    if (records.size() == 1)
        m_only = std::move(records.front());
    else
        m_several = std::move(records);
}

JournalStep::Records JournalStep::take()
{
    Records records = std::move(m_several);
    if (m_only != nullptr)
        records.push_back(std::move(m_only));
    m_several.clear();
    return records;
}

} // namespace meridane
