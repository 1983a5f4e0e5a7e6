#pragma once

#include "orvane/app/inspect/ScenePlace.h"

#include "meridane/base/values/VbName.h"

#include <cstddef>
#include <span>
#include <vector>

/// The nodes that the user has been at, one after the other, to go back and forward between them.
///
/// A node that has left the scene is passed over, and is there again if it comes back. Nodes aren't kept alive.
class PlaceHistory {
public:
    /// The oldest places are forgotten beyond this.
    static constexpr std::size_t mostPlaces = 100;

    /// A place to go to, and the name of the field that was selected there last; empty for none.
    struct Stop {
        std::vector<NxNode*> path;
        VbName field;
    };

    enum class Direction { Back, Forward };

    /// The user went to a node; see `ScenePlace` for the arguments. The places ahead are forgotten, unless it is the
    /// present one.
    void visit(std::span<NxNode* const> path, std::span<const int> rows = {});
    /// The user is at no node any more; the present place is the first one behind.
    void leave() noexcept { m_isAway = true; }
    /// A field of that node was selected. It is the one of the present place if that is the node's.
    void noteField(const NxFieldContainer& node, const VbName& field);
    void clear();

    /// The places in that direction that are in the scene, the nearest first, at most `most`.
    [[nodiscard]] std::vector<std::size_t> places(Direction direction, const NxNode& scene, std::size_t most) const;
    /// The node of one of them.
    [[nodiscard]] NxNode* node(std::size_t place) const { return m_visits[place].place.node(); }
    /// Whether a place is still one of that node, and in the scene. The node may be destroyed.
    [[nodiscard]] bool isPlaceOf(std::size_t place, const NxNode* node, const NxNode& scene) const;
    /// Makes one of them the present place.
    [[nodiscard]] Stop goTo(std::size_t place, const NxNode& scene);

private:
    struct Visit {
        ScenePlace place;
        VbName field;
    };

    std::vector<Visit> m_visits;
    std::size_t m_present = 0; // among them, if there are any
    bool m_isAway = true;
};
