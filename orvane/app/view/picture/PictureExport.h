#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QColor>
#include <QObject>
#include <QSize>

#include <optional>
#include <vector>

class CameraMenu;
class MessageBar;
class PictureDialog;
class QAction;
class QStatusBar;
class SceneBookmarks;
class SceneView;
class Session;

/// Writes pictures of the open scene: asks what they are to be like and for a file, draws and writes them.
class PictureExport : public QObject {
    Q_OBJECT

public:
    /// What the user chooses from, and where results are shown. All live as long as the view.
    struct Parts {
        Session& session;
        const CameraMenu& cameras;
        const SceneBookmarks& bookmarks;
        MessageBar& messages;
        QStatusBar* bar;
    };

    /// The view is the parent.
    PictureExport(SceneView* view, const Parts& parts);

    /// For the View menu.
    [[nodiscard]] QAction* action() const noexcept { return m_action; }

private:
    /// What the user has chosen.
    struct Choice {
        QSize size;
        std::optional<NxViewpoint> viewpoint; ///< nothing to have all of the scene in view
        QColor background;
        bool hasGrid = false;
    };

    void update();
    void ask();
    void chooseFile(const Choice& choice);
    void write(const Choice& choice, const QString& fileName);

    SceneView* m_view;
    Parts m_parts;
    QAction* m_action;
};
