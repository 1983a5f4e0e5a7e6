#pragma once

#include "meridane/scene/compare/detail/SceneDigest.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

namespace meridane {

/// Which of the two scenes; an index of arrays.
enum SceneSide : std::size_t { LeftScene, RightScene };

/// Which nodes of two scenes, and which of their uses, correspond to each other.
///
/// A node has one partner and is the partner of its partner, with one exception: a node that is used in several places
/// in one scene may correspond to copies in the other. The first of the copies is its partner. To each other copy the
/// node is the partner, but not the other way round.
class MatchTables {
public:
    static constexpr std::uint32_t none = SceneDigest::none;

    /// Two groups whose children are to be matched.
    struct Pair {
        std::uint32_t left;
        std::uint32_t right;
        bool isCopy; // one of them has another partner
    };

    enum class SlotState : std::uint8_t {
        Unpaired,
        Paired,
        Reordered, ///< paired, but in another order than most of the children
        Moved, ///< paired with a slot in a group that isn't the partner of its own
    };

    /// The digests must be complete, and live longer.
    MatchTables(const SceneDigest& left, const SceneDigest& right);

    [[nodiscard]] const SceneDigest& scene(SceneSide side) const noexcept { return *m_sides[side].scene; }
    [[nodiscard]] std::uint32_t partner(SceneSide side, std::uint32_t node) const
    {
        return m_sides[side].partners[node];
    }
    [[nodiscard]] bool hasPartner(SceneSide side, std::uint32_t node) const { return partner(side, node) != none; }
    [[nodiscard]] std::uint32_t slotPartner(SceneSide side, std::uint32_t slot) const
    {
        return m_sides[side].slotPartners[slot];
    }
    [[nodiscard]] SlotState slotState(SceneSide side, std::uint32_t slot) const
    {
        return m_sides[side].slotStates[slot];
    }
    [[nodiscard]] std::uint32_t nodeOfSlot(SceneSide side, std::uint32_t slot) const
    {
        return scene(side).slot(slot).node;
    }

    /// Whether each is the other's partner.
    [[nodiscard]] bool arePartners(std::uint32_t left, std::uint32_t right) const
    {
        return partner(LeftScene, left) == right && partner(RightScene, right) == left;
    }
    /// Whether the nodes may correspond to each other: they are partners, or neither has one, or one of them is a copy.
    [[nodiscard]] bool mayMatch(std::uint32_t left, std::uint32_t right) const;

    /// Makes nodes partners and notes groups among them in `pending`.
    void match(std::uint32_t left, std::uint32_t right);
    /// Pairs slots in two groups that are partners, and matches their nodes.
    void pairSlots(std::uint32_t left, std::uint32_t right);
    /// Notes that slots are the same use in another place.
    void moveSlot(std::uint32_t left, std::uint32_t right);
    void setReordered(std::uint32_t left);

    /// The groups that were matched and whose children weren't yet.
    [[nodiscard]] std::deque<Pair>& pending() noexcept { return m_pending; }

private:
    struct Side {
        const SceneDigest* scene;
        std::vector<std::uint32_t> partners; // of nodes
        std::vector<std::uint32_t> slotPartners;
        std::vector<SlotState> slotStates;
    };

    void setSlot(SceneSide side, std::uint32_t slot, std::uint32_t other, SlotState state);

    std::array<Side, 2> m_sides;
    std::deque<Pair> m_pending;
};

} // namespace meridane
