#pragma once

#include "meridane/base/values/VbName.h"

#include <QObject>

class FieldPanel;
class NxField;
class NxFieldContainer;
class OrvServices;
class SceneTreePanel;

/// Keeps tree, field table and the services' selection in step, whichever of them changes first.
///
/// A field stays selected across nodes: the node that comes next has the field of the same name and type selected, if
/// there is one, so that a user can walk through nodes and compare or edit one field.
class SelectionLink : public QObject {
    Q_OBJECT

public:
    SelectionLink(OrvServices& services, SceneTreePanel* tree, FieldPanel* fields);

private:
    void chooseNode(NxFieldContainer* node);
    void showNode(NxFieldContainer* node);
    void showField(NxField* field);
    [[nodiscard]] NxField* keptField(NxFieldContainer* node) const;

    OrvServices& m_services;
    SceneTreePanel* m_tree;
    FieldPanel* m_fields;
};
