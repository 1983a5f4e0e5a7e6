#pragma once

#include "orvane/app/structure/StepSelections.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QModelIndex>
#include <QObject>

#include <cstddef>
#include <optional>
#include <unordered_set>
#include <vector>

namespace meridane {
class JournalStep;
}

class OrvServices;
class SceneTreePanel;
class StepTravel;

/// Selects what was selected before or after a step when undo or redo brings the scene there, or the node that comes
/// back. Nodes that move or come back are unfolded as they were.
///
/// On the way through many steps nothing is selected before the end.
class ReturnedNodes : public QObject {
    Q_OBJECT

public:
    /// All live longer, or are deleted with the object by the window.
    ReturnedNodes(
        OrvServices& services, const StepTravel& travel, SceneTreePanel* tree, const StepSelections& selections);

private:
    void noteStep(int index);
    void noteMovedRows(const meridane::JournalStep& changes);
    void show();
    void select();
    void unfoldMovedRows();
    void noteUnfolded(const QModelIndex& index, bool isUnfolded);
    void unfold(const QModelIndex& index);

    OrvServices& m_services;
    const StepTravel& m_travel;
    SceneTreePanel* m_tree;
    const StepSelections& m_selections;
    NxRef<NxNode> m_returned; // by the latest step; null for none
    std::optional<StepSelections::Rows> m_rows; // to be selected after it, if they are known
    /// Rows of a group that a step has changed.
    struct MovedRows {
        NxRef<NxGroup> group;
        int first = 0;
        int end = 0;
    };
    std::vector<MovedRows> m_moved;
    std::unordered_set<std::size_t> m_unfolded; // the numbers of nodes that are, or were when they left the tree
};
