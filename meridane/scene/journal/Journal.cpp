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
    // The node may have the number that another journal gave it.
    const std::size_t number = std::size_t{numberOf(node)} - 1;
    return number < m_nodes.size() && m_nodes[number] == &node ? std::optional(number) : std::nullopt;
}

void Journal::setHook(void (*hook)(void*), void* data) noexcept
{
    m_hook = hook;
    m_hookData = data;
}

bool Journal::hasChanges() const
{
    return StepRecords::haveChanges(m_records);
}

std::unique_ptr<JournalStep> Journal::finishStep()
{
    if (m_records.empty())
        return nullptr;
    closeRecords();
    JournalStep::Records records = std::exchange(m_records, {});
    StepRecords::removeUnchanged(records);
    return records.empty() ? nullptr : std::make_unique<JournalStep>(std::move(records));
}

void Journal::revertStep()
{
    if (m_records.empty())
        return;
    closeRecords();
    StepRecords::undo(m_records);
    StepRecords::notify(m_records);
    m_records.clear(); // which keeps its memory for the next undo
}

void Journal::add(std::unique_ptr<ChangeRecord> record) noexcept
{
    if (record->growth() != 0 && record->field() != nullptr) {
        m_rows.erase(record->field());
        m_latestList = nullptr;
    }
    m_bytes += sizeof(record) + record->bytes();
    m_records.push_back(std::move(record));
    if (m_hook != nullptr)
        m_hook(m_hookData);
}

void Journal::withdraw() noexcept
{
    m_bytes -= sizeof(m_records.back()) + m_records.back()->bytes();
    m_records.back()->close();
    m_records.pop_back();
}

bool Journal::hasRow(const NxField& list, int row) const noexcept
{
    if (m_latestList == &list && m_latestRow == row)
        return true;
    const auto found = m_rows.find(&list);
    return found != m_rows.end() && found->second.contains(row);
}

void Journal::noteRow(const NxField& list, int row)
{
    m_rows[&list].insert(row);
    m_latestList = &list;
    m_latestRow = row;
}

void Journal::follow(std::span<NxNode* const> nodes)
{
    for (NxNode* top : nodes) {
        // The nodes below a node that is followed are followed, too.
        std::vector<NxNode*> waiting{top};
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
    if (const auto number = this->number(node))
        m_nodes[*number] = nullptr;
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
    m_latestList = nullptr;
    m_bytes = 0;
}

} // namespace meridane
