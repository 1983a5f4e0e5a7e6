#pragma once

#include "orvane/app/view/SceneCameras.h"

#include <QObject>

#include <vector>

class NxNode;
class QLabel;
class QStatusBar;
class SceneTreePanel;
class SceneView;
class Session;
class VbVec3d;

/// Ties the view to the scene that is open, to the selection in the tree, and to the viewpoint kept for each scene.
class ViewLink : public QObject {
    Q_OBJECT

public:
    ViewLink(Session& session, SceneView* view, SceneTreePanel* tree, QStatusBar* bar);

private:
    void leaveScene();
    void showScene();
    void showSelection();
    void choose(const std::vector<NxNode*>& nodes, const VbVec3d& point);
    void chooseNothing();

    Session& m_session;
    SceneView* m_view;
    SceneTreePanel* m_tree;
    QLabel* m_point;
    SceneCameras m_cameras;
};
