#pragma once

#include "orvane/app/view/CameraFollower.h"

#include <QObject>

#include <vector>

class NxGroup;
class NxNode;
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

private:
    void choose(int index);
    [[nodiscard]] std::vector<std::vector<NxNode*>> cameras() const;

    SceneView* m_view;
    SceneDocument& m_document;
    CameraFollower m_follower;
    QMenu* m_menu;
};
