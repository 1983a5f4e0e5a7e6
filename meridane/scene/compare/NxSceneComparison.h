#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/NxSceneDifferences.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>

namespace meridane {

class ComparisonWork;

} // namespace meridane

/// Finds the differences of two scenes, in slices: the nodes that only one of them has, and what differs in nodes of
/// both.
///
/// Nodes correspond to each other by their path: starting at the scenes, children correspond if their groups do and
/// they have the same name, and no sibling has it. Further siblings correspond if they are equal, so that one that
/// comes or goes doesn't shift the others; then by name and class between the same neighbours. A sibling was renamed if
/// it is equal apart from its name, or if it is at the same place and half of what it holds is the same. A node was
/// moved to another group if it has a name and class, or a content, that no other node has that corresponds to none
/// yet. docs/compare.md has the rules for users. The result is the same every time; with the scenes exchanged it is the
/// same differences the other way round.
///
/// It takes time and memory in proportion to the number of nodes, each counted once however often it is used. Values
/// are compared to the bit. Thread of the user interface only. The scenes may change between two slices: it starts
/// again if the structure of any scene has changed, and compares values as they are when it gets to them.
class NxSceneComparison {
public:
    /// Whether a slice has left something to compare.
    enum class State { Working, Done };

    /// The scenes are the groups that hold the top nodes; their own names and fields aren't compared. They are held.
    NxSceneComparison(NxRef<NxGroup> left, NxRef<NxGroup> right);
    ~NxSceneComparison();

    /// Works until done or until the budget is spent, which it may exceed by some milliseconds in groups of a million
    /// nodes.
    State step(const meridane::WorkBudget& budget);
    /// Works to the end.
    State run();
    /// The fraction of the work that is done, 0 to 1.
    [[nodiscard]] double progress() const;
    /// The result; empty unless the state is `Done`, and after the first call.
    [[nodiscard]] NxSceneDifferences takeDifferences();

private:
    NxRef<NxGroup> m_left;
    NxRef<NxGroup> m_right;
    std::unique_ptr<meridane::ComparisonWork> m_work;
    NxSceneDifferences m_differences;
};
