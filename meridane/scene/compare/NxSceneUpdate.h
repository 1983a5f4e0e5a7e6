#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/compare/NxSceneChanges.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>

namespace meridane {

class UpdateWork;

} // namespace meridane

/// Finds out, in slices, what makes a scene equal to another one, such as its own file that was read again. Nodes that
/// correspond (`NxSceneComparison`) stay the same objects, so that only what differs changes; nodes of the other scene
/// that correspond to none become part of the scene.
///
/// It changes nothing. The result is valid as long as neither scene changes. If nodes of any scene come, go or get
/// other names while it works, it starts again; whether values of the scene were changed meanwhile is for the caller to
/// know. Thread of the user interface only.
class NxSceneUpdate {
public:
    /// Whether a slice has left something to compare.
    enum class State { Working, Done };

    /// The scenes are the groups that hold the top nodes. They are held.
    NxSceneUpdate(NxRef<NxGroup> scene, NxRef<NxGroup> other);
    ~NxSceneUpdate();

    /// Works until done or until the budget is spent, which it may exceed by some milliseconds in groups of a million
    /// nodes.
    State step(const meridane::WorkBudget& budget);
    /// Works to the end.
    State run();
    /// The fraction of the work that is done, 0 to 1.
    [[nodiscard]] double progress() const;
    /// Whether nodes have come or gone or got other names since, so that the result isn't valid any more.
    [[nodiscard]] bool isOutdated() const;
    /// The result; empty unless the state is `Done`, and after the first call.
    [[nodiscard]] NxSceneChanges takeChanges();

private:
    NxRef<NxGroup> m_scene;
    NxRef<NxGroup> m_other;
    std::unique_ptr<meridane::UpdateWork> m_work;
};
