#pragma once

#include "meridane/scene/compare/detail/ChildAlignment.h"
#include "meridane/scene/compare/detail/KeyQueues.h"
#include "meridane/scene/compare/detail/MatchTables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace meridane {

/// Finds out which nodes of two scenes correspond to each other, in slices.
///
/// It starts with the scenes themselves and pairs the children of groups that correspond (`ChildAlignment`). Nodes that
/// are left over were moved to another group if it is clear which: if they have a name and class, or a content, that no
/// other node has which is left over.
class SceneMatching {
public:
    /// The tables must live longer.
    explicit SceneMatching(MatchTables& tables)
        : m_tables(tables)
        , m_alignment(tables)
    {
    }

    /// Visits about `budget` nodes. Returns true if there is more to do.
    bool step(std::size_t budget);

private:
    enum class Phase { Children, CountLeft, CountRight, AddLeft, AddRight, Match, Done };
    /// By what moved nodes are found, in this order.
    enum class Criterion { NameAndClass, Everything, Content, End };

    void work();
    void count(SceneSide side);
    void add(SceneSide side);
    void matchNext();
    void startCriterion(Criterion criterion);
    [[nodiscard]] bool isLeft(SceneSide side, std::uint32_t node) const { return !m_tables.hasPartner(side, node); }
    /// Whether the group that the node was in has a partner.
    [[nodiscard]] bool isTop(SceneSide side, std::uint32_t node) const;
    [[nodiscard]] std::optional<std::uint64_t> keyOf(SceneSide side, std::uint32_t node) const;

    MatchTables& m_tables;
    ChildAlignment m_alignment;
    bool m_aligning = false;
    Phase m_phase = Phase::Children;
    Criterion m_criterion = Criterion::NameAndClass;
    std::uint32_t m_next = 0;
    std::array<std::size_t, 2> m_leftOver{};
    std::array<KeyQueues, 2> m_queues;
};

} // namespace meridane
