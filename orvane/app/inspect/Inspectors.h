#pragma once

#include <QList>
#include <QObject>

#include <vector>

class FavoriteActions;
class FavoriteNodes;
class FieldPanel;
class FileFlow;
class InspectorDock;
class InspectorDocks;
class KeptLocks;
class LockAction;
class NodeLock;
class NxNode;
class PlaceActions;
class QAction;
class QMainWindow;
class SceneTreePanel;
class SelectionLink;
class Session;

/// What the window's inspectors show: the selection, or the node that they are locked on; and the way back to what was
/// selected before.
class Inspectors : public QObject {
    Q_OBJECT

public:
    /// Adds what belongs in the status bar to the window. All live as long as the window.
    Inspectors(Session& session, SceneTreePanel* tree, FieldPanel* fields, QMainWindow* window);
    ~Inspectors() override;

    /// Lets locks go on to the nodes that reloads put in place of others.
    void followReloads(const FileFlow& flow);
    [[nodiscard]] SelectionLink& link() const noexcept { return *m_link; }
    void addToolBar();
    /// For the View menu.
    [[nodiscard]] QList<QAction*> menuActions() const;
    /// Marks the node that is selected in the tree as a favorite.
    [[nodiscard]] QAction* favoriteAction() const;
    /// Opens a further inspector.
    [[nodiscard]] QAction* newAction() const;
    /// Locks the first inspector on the node that is selected in the tree, whatever it is locked on now.
    void lockOnSelected();
    /// Shows a message in the status bar for some seconds.
    void showMessage(const QString& message);
    /// Adds the further inspectors that the last window had, once the slots of `panelAdded` are connected.
    void restoreDocks();

Q_SIGNALS:
    /// There is another panel, for those who connect to the signals of each.
    void panelAdded(FieldPanel* panel);

private:
    void noteDock(InspectorDock* dock);
    [[nodiscard]] std::vector<NxNode*> selectedPath() const;

    Session& m_session;
    SceneTreePanel* m_tree;
    QMainWindow* m_window;
    NodeLock* m_lock;
    SelectionLink* m_link;
    PlaceActions* m_places;
    LockAction* m_lockAction;
    InspectorDocks* m_docks;
    KeptLocks* m_kept;
    FavoriteNodes* m_favorites;
    FavoriteActions* m_favoriteActions;
};
