#pragma once

#include "meridane/scene/check/NxCheckOptions.h"
#include "meridane/scene/check/detail/ClassPlan.h"
#include "meridane/scene/check/detail/NodeCheck.h"
#include "meridane/scene/check/detail/NodeTable.h"
#include "meridane/scene/check/detail/ProblemLists.h"
#include "meridane/scene/check/detail/SiblingCheck.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

namespace meridane {

class WorkMeter;

/// What a check knows of a scene, and what it has still to look at.
///
/// Each node has an entry while it is in the scene, with the group that holds it, so that a change can be followed
/// upwards. Only a group has a record, which keeps it alive; other nodes are known by their addresses. What was removed
/// from a group is taken out of the table before anything else, so an address in the table is that of a living node.
class CheckWork {
public:
    CheckWork(NxGroup& scene, const NxCheckOptions& options);

    /// Works on. Returns false when nothing is left.
    bool step(WorkMeter& meter);

    /// A value of the node has changed.
    void noteValue(NxNode& node) { m_dirty.push_back({NxRef<NxNode>(&node), Change::Value}); }
    void noteName(NxNode& node) { m_dirty.push_back({NxRef<NxNode>(&node), Change::Name}); }
    /// Children of a group are about to be replaced, `removed` of them from `start` on.
    void noteChildren(NxGroup& group, std::size_t start, std::size_t removed);
    /// The caller has found the files that it was still looking for.
    void noteFiles();

    [[nodiscard]] ProblemLists& lists() noexcept { return m_lists; }
    [[nodiscard]] const ProblemLists& lists() const noexcept { return m_lists; }
    /// The lists of problems of a node: of its values, and of its children.
    struct NodeLists {
        std::uint32_t values = ProblemLists::none;
        std::uint32_t children = ProblemLists::none;
    };
    [[nodiscard]] NodeLists listsOf(const NxNode& node) const noexcept;
    /// The indices that lead to a node of the scene, if it is known where it is.
    [[nodiscard]] std::vector<int> placesOf(const NxNode& node) const;
    [[nodiscard]] std::size_t nodeCount() const noexcept { return m_table.size() - 1; }

private:
    enum class Change : std::uint8_t { Value, Name, Children };
    struct Dirty {
        NxRef<NxNode> node;
        Change change = Change::Value;
    };
    struct GroupRecord {
        NxRef<NxGroup> group; ///< null for a record that isn't used
        ClassPlan::Role role = ClassPlan::Role::Group;
        std::uint8_t uses = 0; ///< see UseBit
        std::size_t lights = 0; ///< see SiblingCheck::lights
        bool needsLink = true; ///< it may have children that don't know it
        bool needsCheck = true;
        std::uint32_t problems = ProblemLists::none;
    };
    /// A child that a group doesn't have any more.
    struct Removal {
        std::uint32_t record = NodeTable::none;
        const NxNode* node = nullptr;
    };

    bool stepOnce(WorkMeter& meter);
    void remove(const Removal& removal);
    void drop(NodeTable::Entry& entry);
    void apply(const Dirty& dirty);
    bool checkValues(WorkMeter& meter);
    bool checkGroup(WorkMeter& meter);
    bool link(WorkMeter& meter);
    void linkChild(NxNode& child, int place);
    void finishSiblings(std::uint32_t record);
    std::uint32_t addRecord(NxGroup& group);
    void queueParents(const NxNode& node);
    void queue(std::uint32_t record);
    [[nodiscard]] SiblingFacts factsOf(NxNode& child);

    NxGroup& m_scene;
    ClassPlans m_plans;
    NodeTable m_table;
    /// The groups that hold a node besides the one in its entry.
    std::unordered_multimap<const NxNode*, std::uint32_t> m_moreParents;
    std::deque<GroupRecord> m_records;
    std::vector<std::uint32_t> m_freeRecords;
    ProblemLists m_lists;
    NodeCheck m_nodeCheck;
    SiblingCheck m_siblings;
    std::uint32_t m_siblingRecord = NodeTable::none;

    // What is left to do, in this order.
    std::deque<Removal> m_removals;
    std::deque<Dirty> m_dirty;
    std::uint32_t m_linking = NodeTable::none;
    std::size_t m_linkNext = 0; // the child before it is the next
    std::vector<const NxNode*> m_values; // to be checked, the last one first
    std::vector<std::uint32_t> m_groups; // the same

    std::vector<NxRef<NxNode>> m_awaitingFiles;
};

} // namespace meridane
