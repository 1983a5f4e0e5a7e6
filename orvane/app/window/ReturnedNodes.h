#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QModelIndex>
#include <QObject>

#include <cstddef>
#include <unordered_set>

class OrvServices;
class SceneTreePanel;
class StepTravel;

/// Selects a node that undo or redo brings back to the scene, and unfolds the tree as it was when the node left.
///
/// On the way through many steps nothing is selected before the end.
class ReturnedNodes : public QObject {
    Q_OBJECT

public:
    /// All live longer, or are deleted with the object by the window.
    ReturnedNodes(OrvServices& services, const StepTravel& travel, SceneTreePanel* tree);

private:
    void noteStep(int index);
    void show();
    void noteUnfolded(const QModelIndex& index, bool isUnfolded);
    void unfold(const QModelIndex& index);

    OrvServices& m_services;
    const StepTravel& m_travel;
    SceneTreePanel* m_tree;
    NxRef<NxNode> m_returned; // by the latest step; null for none
    std::unordered_set<std::size_t> m_unfolded; // the numbers of nodes that are, or were when they left the tree
};
