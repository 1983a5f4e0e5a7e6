#include "meridane/scene/journal/Journal.h"

#include "meridane/scene/journal/detail/StepRecords.h"

#include <cassert>
#include <utility>

namespace meridane {

namespace {

// Nodes that are numbered between two looks at the clock.
constexpr int nodesPerLook = 256;

} // namespace

Journal::Journal(NxGroup& scene)
    : m_scene(&scene)
    , m_waiting(scene)
{
    giveNumber(scene);
}

Journal::~Journal()
{
    for (const auto& record : m_records)
        record->close();
    if (isRecording())
        attach(nullptr);
}

void Journal::record() noexcept
{
    assert(!m_waiting && attached() == nullptr && "all nodes have numbers, and no other journal records");
    attach(this);
}

void Journal::adopt(const Journal& tree)
{
    assert(!tree.m_waiting && "all nodes have numbers");
    m_adopted.reserve(m_adopted.size() + 1);
    const std::size_t first = m_nodes.size();
    m_nodes.insert(m_nodes.end(), tree.m_nodes.begin(), tree.m_nodes.end());
    m_adopted.push_back(first);
}

bool Journal::run(const WorkBudget& budget)
{
    while (m_waiting) {
        for (int i = 0; i < nodesPerLook; ++i) {
            NxNode* const node = m_waiting->next();
            if (node == nullptr) {
                m_waiting.reset();
                return false;
            }
            giveNumber(*node);
        }
        if (budget.isSpent())
            return true;
    }
    return false;
}

NxFieldContainer* Journal::node(std::size_t number) const noexcept
{
    return number < m_nodes.size() ? m_nodes[number] : nullptr;
}

std::optional<std::size_t> Journal::number(const NxFieldContainer& node) const noexcept
{
    if (numberOf(node) == 0)
        return std::nullopt;
    // The node may have the number that another journal gave it.
    const auto isNumber = [&](std::size_t number) { return number < m_nodes.size() && m_nodes[number] == &node; };
    const std::size_t given = std::size_t{numberOf(node)} - 1;
    if (isNumber(given))
        return given;
    for (const std::size_t difference : m_adopted) {
        if (isNumber(given + difference))
            return given + difference;
    }
    return std::nullopt;
}

void Journal::addListener(JournalListener& listener)
{
    m_listeners.push_back(&listener);
}

void Journal::removeListener(JournalListener& listener) noexcept
{
    std::erase(m_listeners, &listener);
}

void Journal::inform(const PlaceChange& change) noexcept
{
    for (JournalListener* const listener : m_listeners)
        listener->aboutToChange(change);
}

void Journal::reportAgain(NxField& field)
{
    if (const Marks marks = marksOf(field); !marks.isEmpty()) {
        Marks& reopened = m_reopened[&field];
        reopened.value = reopened.value || marks.value;
        reopened.ignored = reopened.ignored || marks.ignored;
        removeMarks(field);
    }
    if (m_rows.empty())
        return;
    if (const auto found = m_rows.find(&field); found != m_rows.end()) {
        ++found->second.round;
        m_areRowsReopened = true;
    }
    m_latestList = nullptr;
}

void Journal::reportAgain(NxFieldContainer& node)
{
    if (marksOf(node).isEmpty())
        return;
    m_reopened[&node].name = true;
    removeMarks(node);
}

void Journal::reportAllAgain()
{
    for (const auto& record : m_records) {
        if (NxField* const field = record->field())
            reportAgain(*field);
        else
            reportAgain(record->node());
    }
}

bool Journal::isHeld(const ChangeRecord& record) const noexcept
{
    using Kind = ChangeRecord::Kind;
    if (record.kind() == Kind::Children)
        return false;
    if (!m_reopened.empty()) {
        const void* const owner = record.field() != nullptr ? static_cast<const void*>(record.field()) : &record.node();
        if (const auto found = m_reopened.find(owner); found != m_reopened.end()) {
            const Marks& marks = found->second;
            const bool isInValue = record.kind() == Kind::Value || record.kind() == Kind::Rows;
            if (isInValue ? marks.value : record.kind() == Kind::Ignored ? marks.ignored : marks.name)
                return true;
        }
    }
    if (!m_areRowsReopened || record.kind() != Kind::Rows)
        return false;
    const ChangeRecord::Extent extent = record.extent();
    const auto found = m_rows.find(record.field());
    return extent.present == 1 && extent.recorded == 1 && found != m_rows.end()
        && found->second.rounds.contains(static_cast<int>(extent.start));
}

bool Journal::hasChanges() const
{
    return StepRecords::haveChanges(m_records);
}

std::optional<JournalStep> Journal::finishStep()
{
    if (m_records.empty())
        return std::nullopt;
    closeRecords();
    JournalStep::Records records = std::exchange(m_records, {});
    StepRecords::removeUnchanged(records);
    return records.empty() ? std::nullopt : std::optional<JournalStep>(std::in_place, std::move(records));
}

void Journal::moveOver(JournalStep* step, void (JournalStep::*move)())
{
    // The commands of most steps do it themselves.
    if (step != nullptr && giveMove(*step))
        return;
    revertStep();
    if (step != nullptr)
        (step->*move)();
}

bool Journal::giveMove(JournalStep& step)
{
    if (m_records.size() != 1 || !step.takeMove(m_records.front()))
        return false;
    m_records.clear(); // which keeps its memory for the next undo
    step.records().front()->close();
    closeRecords();
    return true;
}

void Journal::revertStep()
{
    if (m_records.empty())
        return;
    closeRecords();
    StepRecords::moveBack(m_records);
    StepRecords::notify(m_records);
    m_records.clear(); // which keeps its memory for the next undo
}

void Journal::add(std::unique_ptr<ChangeRecord> record) noexcept
{
    const ChangeRecord::Extent extent = record->extent();
    m_latest = {PlaceChange::Cause::Write, record->kind(), &record->node(), record->field(), extent.start,
        extent.recorded, extent.present};
    inform(m_latest);
    if (record->growth() != 0 && record->field() != nullptr) {
        m_rows.erase(record->field());
        m_latestList = nullptr;
    }
    m_hasLatest = !isHeld(*record);
    if (!m_hasLatest)
        return;
    m_bytes += sizeof(record) + record->bytes();
    m_records.push_back(std::move(record));
}

void Journal::noteExchange(const ChangeRecord& record) noexcept
{
    if (!follows(record.node()))
        return;
    const ChangeRecord::Extent extent = record.extent();
    inform({PlaceChange::Cause::Exchange, record.kind(), &record.node(), record.field(), extent.start, extent.present,
        extent.recorded});
}

void Journal::withdraw() noexcept
{
    std::swap(m_latest.removed, m_latest.inserted);
    inform(m_latest);
    if (!m_hasLatest)
        return;
    m_bytes -= sizeof(m_records.back()) + m_records.back()->bytes();
    m_records.back()->close();
    m_records.pop_back();
}

bool Journal::hasRow(const NxField& list, int row) const noexcept
{
    if (m_latestList == &list && m_latestRow == row)
        return true;
    const auto found = m_rows.find(&list);
    if (found == m_rows.end())
        return false;
    const auto round = found->second.rounds.find(row);
    return round != found->second.rounds.end() && round->second == found->second.round;
}

void Journal::noteRow(const NxField& list, int row)
{
    ListRows& rows = m_rows[&list];
    rows.rounds[row] = rows.round;
    m_latestList = &list;
    m_latestRow = row;
}

void Journal::follow(std::span<NxNode* const> nodes)
{
    std::vector<NxNode*> waiting;
    for (NxNode* const top : nodes) {
        // The nodes below a node that is followed are followed, too.
        waiting.push_back(top);
        while (!waiting.empty()) {
            NxNode* const node = waiting.back();
            waiting.pop_back();
            if (follows(*node))
                continue;
            giveNumber(*node);
            const auto children = node->getChildren();
            waiting.insert(waiting.end(), children.rbegin(), children.rend());
        }
    }
}

void Journal::forget(const NxFieldContainer& node) noexcept
{
    const auto number = this->number(node);
    if (!number)
        return;
    m_nodes[*number] = nullptr;
    for (JournalListener* const listener : m_listeners)
        listener->aboutToDestroy(*number);
}

bool Journal::follows(const NxFieldContainer& node) const noexcept
{
    return number(node).has_value();
}

void Journal::makeRoom()
{
    if (m_records.size() == m_records.capacity())
        m_records.reserve(2 * m_records.size() + 1);
}

void Journal::giveNumber(NxFieldContainer& node)
{
    m_nodes.push_back(&node);
    setNumber(node, static_cast<std::uint32_t>(m_nodes.size()));
}

void Journal::closeRecords() noexcept
{
    for (const auto& record : m_records)
        record->close();
    if (!m_rows.empty())
        m_rows.clear();
    m_areRowsReopened = false;
    if (!m_reopened.empty())
        m_reopened.clear();
    m_latestList = nullptr;
    m_bytes = 0;
}

} // namespace meridane
