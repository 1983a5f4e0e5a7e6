#include "meridane/scene/check/detail/CheckWork.h"

#include "meridane/scene/check/detail/WorkMeter.h"

#include <algorithm>
#include <utility>

namespace meridane {
namespace {

// The time of an entry of the table in numbers checked, so that slices end in time.
constexpr std::size_t unitsOfEntry = 24;
constexpr std::size_t unitsOfNode = 32;

} // namespace

CheckWork::CheckWork(NxGroup& scene, const NxCheckOptions& options)
    : m_scene(scene)
    , m_nodeCheck(options, m_plans)
    , m_siblings(options.maxLights)
{
    const std::uint32_t record = addRecord(scene);
    m_table.insert(&scene).group = record;
    m_groups.push_back(record);
}

bool CheckWork::step(WorkMeter& meter)
{
    while (stepOnce(meter)) {
        if (meter.isSpent())
            return true;
    }
    return false;
}

// Removals come first, so that no later part looks at a node that may be gone.
bool CheckWork::stepOnce(WorkMeter& meter)
{
    if (!m_removals.empty()) {
        meter.count(unitsOfEntry);
        remove(m_removals.front());
        m_removals.pop_front();
    } else if (!m_dirty.empty()) {
        meter.count(unitsOfEntry);
        const Dirty dirty = std::move(m_dirty.front());
        m_dirty.pop_front();
        apply(dirty);
    } else if (m_linking != NodeTable::none) {
        if (link(meter))
            m_linking = NodeTable::none;
    } else if (m_nodeCheck.node() != nullptr || !m_values.empty()) {
        return checkValues(meter);
    } else if (!m_groups.empty()) {
        return checkGroup(meter);
    } else {
        return false;
    }
    return true;
}

void CheckWork::noteChildren(NxGroup& group, std::size_t start, std::size_t removed)
{
    m_dirty.push_back({NxRef<NxNode>(&group), Change::Children});
    const NodeTable::Entry* const entry = m_table.find(&group);
    if (entry == nullptr || entry->group == NodeTable::none)
        return;
    const auto children = group.getChildren();
    for (NxNode* const child : children.subspan(std::min(start, children.size()))
                                   .first(std::min(removed, children.size() - std::min(start, children.size()))))
        m_removals.push_back({entry->group, child});
}

void CheckWork::noteFiles()
{
    for (NxRef<NxNode>& node : m_awaitingFiles)
        m_dirty.push_back({std::move(node), Change::Value});
    m_awaitingFiles.clear();
}

void CheckWork::remove(const Removal& removal)
{
    NodeTable::Entry* const entry = m_table.find(removal.node);
    if (entry == nullptr)
        return;
    const auto [begin, end] = m_moreParents.equal_range(removal.node);
    if (entry->parent != removal.record) {
        const auto other
            = std::find_if(begin, end, [&](const auto& parent) { return parent.second == removal.record; });
        if (other != end)
            m_moreParents.erase(other);
        return;
    }
    if (begin != end) {
        entry->parent = begin->second;
        m_moreParents.erase(begin);
        return;
    }
    drop(*entry);
}

void CheckWork::drop(NodeTable::Entry& entry)
{
    const std::uint32_t own = entry.group;
    m_lists.set(entry.problems, {});
    m_table.remove(entry.node);
    if (own == NodeTable::none)
        return;
    GroupRecord& record = m_records[own];
    m_lists.set(record.problems, {});
    if (m_siblingRecord == own) {
        m_siblings.stop();
        m_siblingRecord = NodeTable::none;
    }
    if (m_linking == own)
        m_linking = NodeTable::none;
    for (NxNode* const child : record.group->getChildren())
        m_removals.push_back({own, child});
    record = {};
    record.needsLink = false;
    record.needsCheck = false;
    m_freeRecords.push_back(own);
}

void CheckWork::apply(const Dirty& dirty)
{
    const NodeTable::Entry* const entry = m_table.find(dirty.node.get());
    if (entry == nullptr)
        return; // not in the scene, or not yet seen
    const std::uint32_t own = entry->group;
    if (dirty.change == Change::Name) {
        queueParents(*dirty.node);
        return;
    }
    if (dirty.node.get() != &m_scene)
        m_values.push_back(dirty.node.get());
    // With another role it takes the place of other textures.
    if (m_plans.of(*dirty.node).role == ClassPlan::Role::Texture)
        queueParents(*dirty.node);
    if (dirty.change != Change::Children || own == NodeTable::none)
        return;
    m_records[own].needsLink = true;
    queue(own);
}

bool CheckWork::checkValues(WorkMeter& meter)
{
    if (m_nodeCheck.node() == nullptr) {
        const NxNode* const node = m_values.back();
        m_values.pop_back();
        meter.count(unitsOfNode);
        // A node that is in the table is alive; the table has no other use for it than as an address.
        if (m_table.find(node) == nullptr)
            return true;
        m_nodeCheck.start(const_cast<NxNode&>(*node)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    if (!m_nodeCheck.step(meter))
        return true;
    if (NodeTable::Entry* const entry = m_table.find(m_nodeCheck.node())) {
        if (m_nodeCheck.awaitsFile())
            m_awaitingFiles.emplace_back(m_nodeCheck.node());
        entry->problems = m_lists.set(entry->problems, m_nodeCheck.take());
    }
    m_nodeCheck.stop();
    return true;
}

bool CheckWork::checkGroup(WorkMeter& meter)
{
    const std::uint32_t index = m_groups.back();
    GroupRecord& record = m_records[index];
    if (record.needsLink) {
        record.needsLink = false;
        m_linking = index;
        m_linkNext = record.group->getChildren().size();
        return true;
    }
    if (record.needsCheck) {
        record.needsCheck = false;
        if (m_siblingRecord != NodeTable::none) // a change came between
            m_records[m_siblingRecord].needsCheck = true;
        m_siblings.start(*record.group, record.role);
        m_siblingRecord = index;
    }
    if (m_siblingRecord != index) { // queued twice
        m_groups.pop_back();
        meter.count(1);
        return true;
    }
    if (m_siblings.step(meter, [this](NxNode& child) { return factsOf(child); })) {
        m_groups.pop_back();
        finishSiblings(index);
    }
    return true;
}

void CheckWork::finishSiblings(std::uint32_t index)
{
    GroupRecord& record = m_records[index];
    record.problems = m_lists.set(record.problems, m_siblings.take());
    const std::uint8_t uses = m_siblings.uses();
    const std::size_t lights = m_siblings.lights();
    const NxNode* const group = record.group.get();
    m_siblings.stop();
    m_siblingRecord = NodeTable::none;
    const bool usesOthers = std::exchange(record.uses, uses) != uses;
    if (std::exchange(record.lights, lights) != lights || usesOthers)
        queueParents(*group);
}

bool CheckWork::link(WorkMeter& meter)
{
    NxGroup& group = *m_records[m_linking].group;
    m_linkNext = std::min(m_linkNext, group.getChildren().size());
    // From the last one, so that the first is the first to be checked.
    for (; m_linkNext > 0; --m_linkNext) {
        if (meter.isSpent())
            return false;
        meter.count(unitsOfEntry);
        linkChild(*group.getChildren()[m_linkNext - 1], static_cast<int>(m_linkNext) - 1);
    }
    return true;
}

void CheckWork::linkChild(NxNode& child, int place)
{
    NodeTable::Entry& entry = m_table.insert(&child);
    if (entry.parent == m_linking) {
        entry.place = static_cast<std::uint32_t>(place);
        return;
    }
    if (entry.parent != NodeTable::none) {
        const auto [begin, end] = m_moreParents.equal_range(&child);
        if (std::none_of(begin, end, [this](const auto& parent) { return parent.second == m_linking; }))
            m_moreParents.emplace(&child, m_linking);
        return;
    }
    entry.parent = m_linking;
    entry.place = static_cast<std::uint32_t>(place);
    m_values.push_back(&child);
    const ClassPlan::Role role = m_plans.of(child).role;
    if (role != ClassPlan::Role::Group && role != ClassPlan::Role::Switch && role != ClassPlan::Role::UnknownGroup)
        return;
    const std::uint32_t record = addRecord(static_cast<NxGroup&>(child));
    m_records[record].role = role;
    entry.group = record;
    m_groups.push_back(record);
}

std::uint32_t CheckWork::addRecord(NxGroup& group)
{
    GroupRecord record;
    record.group = &group;
    // A removal that waits may name a record that is free.
    if (m_freeRecords.empty() || !m_removals.empty()) {
        m_records.push_back(std::move(record));
        return static_cast<std::uint32_t>(m_records.size() - 1);
    }
    const std::uint32_t index = m_freeRecords.back();
    m_freeRecords.pop_back();
    m_records[index] = std::move(record);
    return index;
}

void CheckWork::queueParents(const NxNode& node)
{
    const NodeTable::Entry* const entry = m_table.find(&node);
    if (entry == nullptr || entry->parent == NodeTable::none)
        return;
    queue(entry->parent);
    const auto [begin, end] = m_moreParents.equal_range(&node);
    for (auto parent = begin; parent != end; ++parent)
        queue(parent->second);
}

void CheckWork::queue(std::uint32_t index)
{
    if (m_siblingRecord == index) {
        m_siblings.stop();
        m_siblingRecord = NodeTable::none;
    }
    GroupRecord& record = m_records[index];
    const bool isQueued = record.needsCheck;
    record.needsCheck = true;
    // One that is queued deeper down is checked after those above it.
    if (!isQueued || record.needsLink)
        m_groups.push_back(index);
}

SiblingFacts CheckWork::factsOf(NxNode& child)
{
    using Role = ClassPlan::Role;
    SiblingFacts facts;
    facts.role = m_plans.of(child).role;
    switch (facts.role) {
    case Role::Mesh:
    case Role::Unknown:
    case Role::UnknownGroup:
        facts.uses = UsesAll;
        break;
    case Role::Group:
    case Role::Switch:
        if (const NodeTable::Entry* const entry = m_table.find(&child);
            entry != nullptr && entry->group != NodeTable::none) {
            facts.uses = m_records[entry->group].uses;
            facts.lights = m_records[entry->group].lights;
        }
        break;
    case Role::Material:
    case Role::Texture:
    case Role::Complexity:
    case Role::Light:
    case Role::Camera:
    case Role::Bystander:
        break;
    }
    return facts;
}

CheckWork::NodeLists CheckWork::listsOf(const NxNode& node) const noexcept
{
    const NodeTable::Entry* const entry = m_table.find(&node);
    if (entry == nullptr)
        return {};
    return {entry->problems, entry->group == NodeTable::none ? ProblemLists::none : m_records[entry->group].problems};
}

std::vector<int> CheckWork::placesOf(const NxNode& node) const
{
    std::vector<int> places;
    const NxNode* current = &node;
    while (current != &m_scene) {
        const NodeTable::Entry* const entry = m_table.find(current);
        if (entry == nullptr || entry->parent == NodeTable::none || !m_records[entry->parent].group)
            return {};
        const NxGroup& group = *m_records[entry->parent].group;
        const auto place = static_cast<int>(entry->place);
        const int index = group.getChild(place) == current ? place : group.findChild(current);
        if (index < 0)
            return {};
        places.push_back(index);
        current = &group;
    }
    std::reverse(places.begin(), places.end());
    return places;
}

} // namespace meridane
