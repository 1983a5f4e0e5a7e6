#pragma once

#include <QObject>

class FavoriteNodes;
class QAction;
class QMenu;
class QToolBar;
class QWidget;
class SceneTreePanel;

/// Marks the node that is selected in the tree as a favorite, and lists the favorites of the scene.
class FavoriteActions : public QObject {
    Q_OBJECT

public:
    /// All live as long as the window, which owns the menu.
    FavoriteActions(FavoriteNodes& favorites, SceneTreePanel* tree, QWidget* window);

    /// Marks and unmarks; checked if the selected node is marked.
    [[nodiscard]] QAction* toggleAction() const noexcept { return m_toggle; }
    /// Adds a button for it, with the list to drop down.
    void addTo(QToolBar* toolBar);

Q_SIGNALS:
    /// The node can't be marked. The message gives the reason.
    void refused(const QString& message);

private:
    void toggle();
    void update();
    void list();

    FavoriteNodes& m_favorites;
    SceneTreePanel* m_tree;
    QAction* m_toggle;
    QMenu* m_menu;
};
