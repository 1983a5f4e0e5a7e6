#pragma once

#include "orvane/app/view/ViewRectangle.h"

#include <QObject>

#include <vector>

class NxNode;
class SceneTreePanel;
class SceneView;

/// Ties the view to what is selected and hidden in the tree: outlines all selected nodes, selects what the user draws a
/// rectangle around, and shows no hidden nodes.
class ViewSelection : public QObject {
    Q_OBJECT

public:
    /// Both live longer, as parents of this do.
    ViewSelection(SceneView* view, SceneTreePanel* tree);

private:
    void outline();
    void change(const std::vector<std::vector<NxNode*>>& nodes, ViewRectangle::Change change);

    SceneView* m_view;
    SceneTreePanel* m_tree;
};
