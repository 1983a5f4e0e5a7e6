#pragma once

#include "meridane/scene/compare/detail/KeyQueues.h"
#include "meridane/scene/compare/detail/MatchTables.h"
#include "meridane/scene/compare/detail/RisingRun.h"
#include "meridane/scene/compare/detail/ShortestEdit.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace meridane {

/// Pairs the children of two groups that are partners, in slices.
///
/// Children at the beginning and at the end that are equal are paired first, then equal ones between them if few
/// children came or went. The others are paired in passes; each pass pairs what the passes before have left, by one
/// criterion. Children with the same criterion are paired in their order. The last step finds the fewest children that
/// must be moved to get from one order to the other.
class ChildAlignment {
public:
    explicit ChildAlignment(MatchTables& tables)
        : m_tables(tables)
    {
    }

    void start(const MatchTables::Pair& groups);
    /// Visits about `budget` children. Returns true if there is more to do.
    bool step(std::size_t budget);

private:
    enum class Phase { Beginning, End, Edits, Rest, AddLeft, AddRight, Match, Gaps, Order, Done };
    /// What must be the same, in the order of the passes.
    enum class Pass {
        UniqueName, ///< a name that one child of each group has
        UniqueEqual, ///< partners or nodes with equal hashes, of which each group has one
        PlaceAndEqual, ///< partners or nodes with equal hashes, between the same neighbours
        Equal, ///< the same, anywhere
        PlaceNameAndClass, ///< name and class, between the same neighbours
        NameAndClass, ///< name and class, for children with a name
        UniqueContent, ///< all but the name, which is the content of one child of each group
        PlaceAndClass, ///< class, between the same neighbours, and half of what the nodes hold
        End,
    };

    /// The children of one of the groups between the equal ones at the beginning and at the end.
    struct Side {
        std::uint32_t begin; // slots
        std::uint32_t end;
        std::vector<std::uint32_t> rest; // slots that aren't paired
        std::vector<std::uint32_t> gaps; // for each slot from `begin`, the number of anchors before it
        KeyQueues queues; // places in `rest`
    };

    void work();
    void skipBeginning();
    void skipEnd();
    void findEdits();
    void gatherRest();
    void startPass(Pass pass);
    void nextPass();
    void add(SceneSide side);
    void matchNext();
    void pairRest(std::size_t left, std::size_t right);
    void numberGaps();
    void visitOrder();
    void finishOrder();

    [[nodiscard]] bool isSame(std::uint32_t leftSlot, std::uint32_t rightSlot) const;
    [[nodiscard]] bool isUniquePass() const;
    [[nodiscard]] std::uint64_t equalKey(SceneSide side, std::uint32_t number) const;
    [[nodiscard]] std::optional<std::uint64_t> keyOf(SceneSide side, std::uint32_t slot) const;
    [[nodiscard]] std::uint64_t gapOf(SceneSide side, std::uint32_t slot) const;

    MatchTables& m_tables;
    MatchTables::Pair m_groups{};
    Phase m_phase = Phase::Done;
    Pass m_pass = Pass::UniqueName;
    std::array<Side, 2> m_sides{};
    std::size_t m_next = 0; // in the rest that is visited
    std::uint32_t m_nextSlot = 0;
    ShortestEdit m_edits;
    RisingRun m_run;
    std::vector<std::uint32_t> m_runSlots; // on the left
};

} // namespace meridane
