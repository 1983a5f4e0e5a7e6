#pragma once

#include "orvane/app/view/SceneCameras.h"

#include <QObject>

class QLabel;
class QStatusBar;
class SceneTreePanel;
class SceneView;
class Session;
struct NxRayHit;

/// Ties the view to the scene that is open, to the selection in the tree, and to the viewpoint kept for each scene.
class ViewLink : public QObject {
    Q_OBJECT

public:
    ViewLink(Session& session, SceneView* view, SceneTreePanel* tree, QStatusBar* bar);

private:
    [[nodiscard]] static QString pickedText(const NxRayHit& hit);
    void leaveScene();
    void showScene();
    void showSelection();
    void choose(const NxRayHit& hit);
    void chooseNothing();

    Session& m_session;
    SceneView* m_view;
    SceneTreePanel* m_tree;
    QLabel* m_point;
    SceneCameras m_cameras;
    bool m_isChoosing = false; // what was clicked
};
