#pragma once

#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/check/detail/ClassPlan.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace meridane {

class WorkMeter;

/// What the nodes of a group use of what precedes the group: a bit for each kind of node that applies to what follows.
enum UseBit : std::uint8_t {
    UsesMaterial = 1,
    UsesTexture = 2,
    UsesComplexity = 4,
    UsesNormalMap = 8, ///< a texture with that role; likewise below
    UsesSurfaceMap = 16,
    UsesLight = 32,
    UsesAll = 63,
};

/// What a check of a group needs to know of a child.
struct SiblingFacts {
    ClassPlan::Role role = ClassPlan::Role::Bystander;
    std::uint8_t uses = 0; ///< see UseBit
    std::size_t lights = 0; ///< of a group: see `SiblingCheck::lights`
};

/// Finds what is wrong among the children of one group, in slices: the same names, and what applies to nothing.
///
/// The list of children and their names must not change between the slices; `start` again if they did.
class SiblingCheck {
public:
    /// So many children of a group are reported one by one for each kind of problem; the others are one problem.
    static constexpr std::size_t maxReports = 20;

    /// At most `maxLights` lights that shine on a mesh are drawn.
    explicit SiblingCheck(int maxLights) noexcept
        : m_maxLights(static_cast<std::size_t>(maxLights))
    {
    }

    void start(NxGroup& group, ClassPlan::Role role);
    /// Forgets the group.
    void stop() noexcept;
    [[nodiscard]] NxGroup* group() const noexcept { return m_group.get(); }

    /// Goes on with children as long as the meter allows. `factsOf` returns the `SiblingFacts` of a child. True when
    /// done; then the problems can be taken.
    template <typename FactsOf>
    bool step(WorkMeter& meter, FactsOf factsOf)
    {
        if (!emptyTrash(meter))
            return false;
        const auto children = m_group->getChildren();
        for (; m_next < children.size(); ++m_next) {
            if (isSpent(meter))
                return false;
            NxNode& child = *children[m_next];
            visit(child, factsOf(child));
        }
        return reportNames(meter);
    }
    /// What the group uses of what precedes it.
    [[nodiscard]] std::uint8_t uses() const noexcept { return m_uses; }
    /// The greatest number of lights of the group, and of groups in it, that shine on one of its meshes.
    [[nodiscard]] std::size_t lights() const noexcept { return m_mostLights; }
    [[nodiscard]] std::vector<NxSceneProblem> take();

private:
    /// The children of one name.
    struct Namesakes {
        const NxNode* first = nullptr;
        std::uint32_t second = 0; // the index of the second one
        std::uint32_t count = 0;
    };
    /// A child whose use hasn't been seen yet.
    struct Waiting {
        NxNode* node = nullptr;
        int place = 0;
    };
    using Names = std::unordered_map<std::string_view, Namesakes>;

    static bool isSpent(WorkMeter& meter);
    void visit(NxNode& child, const SiblingFacts& facts);
    void countLights(const SiblingFacts& facts);
    void noteName(NxNode& child);
    void use(std::uint8_t uses);
    void replaceWaiting(std::size_t kind, NxNode& child);
    void reportUnused(const Waiting& waiting, NxProblemKind kind);
    void report(NxProblemKind kind, int place, std::size_t count, std::string_view name);
    bool reportNames(WorkMeter& meter);
    void reportMore();
    [[nodiscard]] bool emptyTrash(WorkMeter& meter);

    /// The children that have a problem of one kind.
    struct Reported {
        std::size_t count = 0; ///< as problems of their own
        std::vector<int> more; ///< the places of the others
    };

    NxRef<NxGroup> m_group;
    bool m_isSwitch = false;
    bool m_usesAll = false;
    std::size_t m_next = 0;
    std::uint8_t m_uses = 0; // of what precedes the group
    std::uint8_t m_seen = 0; // kinds of which the group has had one
    std::array<Waiting, 5> m_waiting; // by the number of their bit
    std::vector<Waiting> m_lights;
    std::size_t m_maxLights;
    std::size_t m_lightCount = 0; // of the group so far
    std::size_t m_mostLights = 0;
    /// Several tables for a long list, so that none grows for longer than a slice.
    std::vector<Names> m_names;
    std::size_t m_reportedNames = 0; // tables of them
    std::vector<Names> m_trash; // tables of groups that weren't finished
    std::array<Reported, problemKindCount> m_reported;
    bool m_hasReports = false;
    std::vector<NxSceneProblem> m_problems;
};

} // namespace meridane
