#pragma once

#include "meridane/base/values/VbName.h"

#include <QObject>

class FieldPanel;
class NodeLock;
class NxField;
class NxFieldContainer;
class OrvServices;
class QModelIndex;
class SceneTreePanel;

/// Keeps tree, field table and the services' selection in step, whichever of them changes first.
///
/// A field stays selected across nodes: the node that comes next has the field of the same name and type selected, if
/// there is one, so that a user can walk through nodes and compare or edit one field.
///
/// If several nodes are selected in the tree, the services have the one selected last, and the field table shows the
/// fields that all of them have.
///
/// While the lock is on, the field table and the services' selection, which extensions follow, stay on its node; what
/// the user browses to is selected in the tree alone, and with it in the view.
class SelectionLink : public QObject {
    Q_OBJECT

public:
    /// All live as long as the tree.
    SelectionLink(OrvServices& services, SceneTreePanel* tree, FieldPanel* fields, NodeLock& lock);

    /// Goes where the user wants to be: to the row of a node in the tree, and to its field unless that is null.
    void browse(const QModelIndex& index, NxField* field);

private:
    void chooseNode(NxFieldContainer* node);
    void selectNode(NxFieldContainer* node);
    void showNode(NxFieldContainer* node);
    /// Shows the fields of all nodes that are selected in the tree if they belong to the services' selection.
    void showNodes();
    void showField(NxField* field);
    void followTree();
    [[nodiscard]] NxField* keptField(NxFieldContainer* node) const;

    OrvServices& m_services;
    SceneTreePanel* m_tree;
    FieldPanel* m_fields;
    NodeLock& m_lock;
    bool m_isShowing = false; // a node that was selected by something else than the tree
};
