#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_set>
#include <vector>

/// In how many places of a scene some nodes are: shared nodes, and nodes in shared groups, are in several. Counted in
/// slices, since there may be millions of places. Starts again when the structure of a scene changes meanwhile.
class PlaceCount {
public:
    /// Shared groups may have more places than could ever be visited. Of a larger scene only so many are.
    static constexpr std::size_t mostPlaces = 2'000'000;

    PlaceCount(NxGroup& scene, std::span<NxNode* const> nodes);

    /// Goes on for one slice. Returns true when all places are counted.
    bool advance(const meridane::WorkBudget& budget);

    /// The places of all these nodes together.
    [[nodiscard]] std::size_t count() const noexcept { return m_count; }
    /// How many of the nodes are in the scene.
    [[nodiscard]] std::size_t nodesFound() const noexcept { return m_found.size(); }

private:
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };

    void restart();

    NxRef<NxGroup> m_scene;
    std::unordered_set<const NxNode*> m_wanted;
    std::unordered_set<const NxNode*> m_found;
    std::uint64_t m_revision = 0;
    std::vector<Level> m_levels;
    std::size_t m_visited = 0;
    std::size_t m_count = 0;
};
