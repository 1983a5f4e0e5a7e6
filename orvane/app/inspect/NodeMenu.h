#pragma once

#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include <QList>
#include <QObject>

#include <vector>

class CameraMenu;
class Inspectors;
class NodeActions;
class NxNode;
class QAction;
class QKeySequence;
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
    /// All live as long as the tree. The edit actions, some of which are those of `edits`, are about the node that is
    /// selected in the tree.
    NodeMenu(Session& session, SceneTreePanel* tree, SceneView* view, Inspectors& inspectors, CameraMenu* cameras,
        NodeActions& edits, const QList<QAction*>& editActions);
    ~NodeMenu() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QAction* add(
        const char* name, const char* text, const char* statusTip, const QKeySequence& key, void (NodeMenu::*run)());
    void update();
    void show(const QPoint& globalPlace, bool isOnNode);
    void addNodeActions(QMenu& menu);
    void addEditActions(QMenu& menu);
    void addFieldActions(QMenu& menu);
    void addOthers(QMenu& menu);
    [[nodiscard]] QAction* viewAction(const char* name) const;
    void lock();
    void lookThrough();
    void copyPath();
    void copyFields();
    void pasteFields();
    void findClass();

    Session& m_session;
    SceneTreePanel* m_tree;
    SceneView* m_view;
    Inspectors& m_inspectors;
    CameraMenu* m_cameras;
    NodeActions& m_edits;
    QList<QAction*> m_editActions;
    FieldWriter m_writer;
    QAction* m_copyPath;
    QAction* m_copyFields;
    QAction* m_pasteFields;
    QAction* m_findClass;
    QAction* m_lock;
    QAction* m_lookThrough;
};
