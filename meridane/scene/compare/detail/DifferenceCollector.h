#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/NxSceneDifferences.h"
#include "meridane/scene/compare/detail/KeyQueues.h"
#include "meridane/scene/compare/detail/MatchTables.h"
#include "meridane/scene/file/NxScenePathNamer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace meridane {

/// Lists the differences of two scenes whose nodes were matched, in slices.
class DifferenceCollector {
public:
    /// The tables must live longer.
    explicit DifferenceCollector(MatchTables& tables)
        : m_tables(tables)
    {
    }

    /// Works until the budget is spent. Returns true if there is more to do.
    bool step(const WorkBudget& budget);
    /// The fraction of the work that is done, 0 to 1.
    [[nodiscard]] double progress() const;
    /// The result, once `step` has returned false.
    [[nodiscard]] NxSceneDifferences&& take() { return std::move(m_result); }

private:
    using Kind = NxSceneDifference::Kind;
    using SlotState = MatchTables::SlotState;
    enum class Phase { CountUses, AddUses, MoveUses, Nodes, Copies, Paths, Done };

    static constexpr std::uint32_t none = MatchTables::none;

    /// Where the two nodes of an entry of the result are, or `none`.
    struct Place {
        std::array<std::uint32_t, 2> slots;
    };
    /// A text of a `Sharing` difference: the path of a slot.
    struct SharedPath {
        SceneSide side;
        std::uint32_t slot; // of the node's first use, or `none` where this is the one
    };

    void work();
    void countUses();
    void addUses();
    void moveUses();
    void visitNode();
    void visitSlots();
    void visitCopies();
    [[nodiscard]] bool nameNext(const WorkBudget& budget);
    [[nodiscard]] bool namePath(SceneSide side, std::uint32_t slot, std::string& path, const WorkBudget& budget);

    void startNode(std::uint32_t node);
    void reportOwnSlot(std::uint32_t slot);
    void reportLeftSlot(std::uint32_t slot);
    void reportRightSlot(std::uint32_t slot);
    void reportSharing(std::uint32_t leftSlot);
    void compareNodes(std::uint32_t left, std::uint32_t right, Place place);
    void report(Kind kind, Place place, std::uint32_t leftNumber = 0, std::uint32_t rightNumber = 0);
    void add(NxSceneDifference difference, Place place);

    [[nodiscard]] bool isUnpairedUse(SceneSide side, std::uint32_t slot) const;
    [[nodiscard]] bool isHome(SceneSide side, std::uint32_t slot) const;
    [[nodiscard]] bool isInPartner(SceneSide side, std::uint32_t slot) const;
    [[nodiscard]] NxNode* objectAt(SceneSide side, std::uint32_t slot) const;

    MatchTables& m_tables;
    Phase m_phase = Phase::CountUses;
    NxSceneDifferences m_result;
    std::vector<Place> m_places; // of the nodes of the result
    std::vector<SharedPath> m_sharedPaths; // of the texts of the result
    std::vector<NxSceneDifference> m_fields; // of the nodes that are compared
    KeyQueues m_uses;
    std::size_t m_useCount = 0;
    std::uint32_t m_next = 0;
    std::uint32_t m_group = none; // whose slots are visited
    std::uint32_t m_nextLeftSlot = 0;
    std::uint32_t m_nextRightSlot = 0;
    std::array<NxScenePathNamer, 2> m_namers;
};

} // namespace meridane
