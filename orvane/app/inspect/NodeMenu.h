#pragma once

#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include <QList>
#include <QObject>

#include <vector>

class CameraMenu;
class Inspectors;
class NxNode;
class QAction;
class QMenu;
class QPoint;
class SceneTreePanel;
class SceneView;
class Session;

/// The context menu of the nodes in tree and view, and of the ground between them.
///
/// A right click selects what it is on; the menu key is about what is selected.
class NodeMenu : public QObject {
    Q_OBJECT

public:
    /// All live as long as the tree. The edit actions are about the node that is selected in the tree.
    NodeMenu(Session& session, SceneTreePanel* tree, SceneView* view, Inspectors& inspectors, CameraMenu* cameras,
        const QList<QAction*>& editActions);
    ~NodeMenu() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void show(const QPoint& globalPlace, bool isOnNode);
    void addNodeActions(QMenu& menu);
    void copyPath();
    void copyFields();
    void pasteFields();

    Session& m_session;
    SceneTreePanel* m_tree;
    SceneView* m_view;
    Inspectors& m_inspectors;
    CameraMenu* m_cameras;
    QList<QAction*> m_editActions;
    FieldWriter m_writer;
};
