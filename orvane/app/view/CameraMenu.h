#pragma once

#include "orvane/app/view/CameraFollower.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QObject>

#include <vector>

class NxGroup;
class QMenu;
class SceneDocument;
class SceneView;

/// The menu of the scene's cameras: the view looks through the chosen one, and follows it, until the user moves.
class CameraMenu : public QObject {
    Q_OBJECT

public:
    /// A scene with more cameras shows the first ones.
    static constexpr int mostCameras = 30;

    CameraMenu(SceneView* view, SceneDocument& document);
    ~CameraMenu() override;

    /// The menu, which lists the cameras that there are now.
    [[nodiscard]] QMenu* update();
    /// Looks through the camera that the path leads to, and follows it.
    void follow(const std::vector<NxNode*>& camera);
    /// The nodes that lead to the camera that was looked through last; empty if there is none any more.
    [[nodiscard]] std::vector<NxNode*> latest() const;
    /// The cameras of the scene, each as the nodes that lead to it; the first ones of many.
    [[nodiscard]] std::vector<std::vector<NxNode*>> cameras() const;

Q_SIGNALS:
    /// The view looks through another camera.
    void lookedThrough();

private:
    void choose(int index);

    SceneView* m_view;
    SceneDocument& m_document;
    CameraFollower m_follower;
    std::vector<NxRef<NxNode>> m_latest;
    QMenu* m_menu;
};
