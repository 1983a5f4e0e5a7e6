#pragma once

#include <QList>
#include <QObject>

#include <vector>

class CameraMenu;
class NodeEditor;
class NxNode;
class QAction;
class SceneTreePanel;
class SceneView;
class Session;

/// Cameras from the view: a new one that looks as the view does, and another one that is set to it.
class CameraActions : public QObject {
    Q_OBJECT

public:
    /// The view is the parent; the others live as long.
    CameraActions(
        SceneView* view, Session& session, SceneTreePanel* tree, NodeEditor& editor, const CameraMenu& cameras);

    [[nodiscard]] QList<QAction*> actions() const { return {m_new, m_set}; }

Q_SIGNALS:
    /// Something for the status bar.
    void said(const QString& text);

private:
    QAction* add(const char* name, const char* text, const char* tip, void (CameraActions::*run)());
    void update();
    void addCamera();
    void setCamera();
    /// The nodes that lead to the camera that is selected, else to the one that was looked through last; empty if there
    /// is none.
    [[nodiscard]] std::vector<NxNode*> camera() const;

    SceneView* m_view;
    Session& m_session;
    SceneTreePanel* m_tree;
    NodeEditor& m_editor;
    const CameraMenu& m_cameras;
    QAction* m_new;
    QAction* m_set;
};
