#pragma once

#include <QList>
#include <QObject>

class AppSettings;
class BookmarkMenu;
class CameraMenu;
class NodeEditor;
class QAction;
class QMenu;
class QStatusBar;
class SceneBookmarks;
class SceneTreePanel;
class SceneView;
class Session;
class ViewAnimation;

/// How the user moves about in the view, beside what every view can do: flying, animation, bookmarks, cameras from the
/// view, and what is to be preferred, which is kept in the settings.
class NavigationActions : public QObject {
    Q_OBJECT

public:
    /// All live as long as the view, which is the parent.
    NavigationActions(SceneView* view, Session& session, SceneTreePanel* tree, NodeEditor& editor,
        const CameraMenu& cameras, QStatusBar* bar);

    [[nodiscard]] SceneBookmarks& bookmarks() noexcept { return *m_bookmarks; }
    /// For the View menu.
    [[nodiscard]] QList<QAction*> menuActions() const;

private:
    QAction* addSwitch(const char* name, const char* text, const char* tip);

    AppSettings& m_settings;
    QMenu* m_menu;
    ViewAnimation* m_animation;
    SceneBookmarks* m_bookmarks;
    BookmarkMenu* m_bookmarkMenu;
};
