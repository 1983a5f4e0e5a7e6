#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/check/NxCheckOptions.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace meridane {

class CheckWork;
struct PlaceChange;

} // namespace meridane

/// Finds everything that is wrong with a scene, in slices, and keeps the result up to date as the scene changes.
///
/// A scene that doesn't change needs `step` or `run` alone. If it changes, each change must be noted before it happens
/// (`aboutToChange`, as a listener of the scene's journal is called), and `step` be called again; then only what has
/// changed is checked again, and what depends on it. Thread of the user interface only.
///
/// Problems are kept in numbered lists, each about the values of one node or about the children of one group. The
/// default of an ignored field applies, as everywhere. It opens no file: see `NxCheckOptions`. It takes time and memory
/// in proportion to the number of nodes and of their values, each counted once however often it is used.
class NxSceneCheck {
public:
    /// Whether a slice has left something to check.
    enum class State { Working, Done };

    /// `scene` is the group that holds the top nodes; its own name and fields aren't checked. It is held, and so are
    /// all groups in it.
    explicit NxSceneCheck(NxRef<NxGroup> scene, NxCheckOptions options = {});
    ~NxSceneCheck();

    /// Works until done or until the budget is spent, which it may exceed by some tenths of a millisecond. May throw
    /// `std::bad_alloc`; then call `restart`, or give it up.
    State step(const meridane::WorkBudget& budget);
    /// Works to the end.
    State run();
    /// Forgets all problems and checks everything again.
    void restart();
    /// How many nodes are known so far.
    [[nodiscard]] std::size_t nodeCount() const;

    /// A place of the scene is about to change.
    void aboutToChange(const meridane::PlaceChange& change) noexcept;
    /// A step of the scene's history has ended, or goes on: the places that have changed since the last one may have
    /// changed more often than it was noted. `isOver`: these changes are complete.
    void noteStep(bool isOver) noexcept;
    /// The state of files has changed that was unknown.
    void noteFilesFound() noexcept;

    /// The number of problems of that severity.
    [[nodiscard]] std::size_t count(NxSeverity severity) const;
    /// All numbers of lists are less than this.
    [[nodiscard]] std::size_t listEnd() const;
    /// The problems of a list; empty if there are none. Valid until the next step.
    [[nodiscard]] std::span<const NxSceneProblem> list(std::size_t number) const;
    /// The numbers of the lists that have changed since the last call, each once. After `restart`, forget all lists
    /// first.
    [[nodiscard]] std::vector<std::uint32_t> takeChangedLists();

    /// Passes on all problems in the order of the scene: those of a node, then those of its children. Not sliced;
    /// `report` returns whether to go on, and must not change the scene. The second argument has the indices that lead
    /// to the problem's node: of a child of the scene, of a child of that, and so on.
    using Report = std::function<bool(const NxSceneProblem& problem, std::span<const int> places)>;
    /// Calls `report` for each problem. Only when the state is `Done` are these all.
    void reportAll(const Report& report) const;
    /// The indices that lead to the node of a problem; none if it isn't in the scene any more.
    [[nodiscard]] std::vector<int> placesOf(const NxSceneProblem& problem) const;

private:
    /// A place that has changed since the last step.
    struct Touched {
        NxRef<NxNode> node;
        bool isName = false;
    };

    void noteAgain(const Touched& touched);

    NxRef<NxGroup> m_scene;
    NxCheckOptions m_options;
    std::unique_ptr<meridane::CheckWork> m_work;
    std::vector<Touched> m_touched;
    std::vector<Touched> m_again; // to be noted once more, in slices
    bool m_isOutdated = false; // some change couldn't be noted
};
