#include "orvane/app/inspect/SelectionLink.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/scene/SceneTreeModel.h"
#include "orvane/app/scene/SceneTreePanel.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"

SelectionLink::SelectionLink(OrvServices& services, SceneTreePanel* tree, FieldPanel* fields)
    : QObject(tree)
    , m_services(services)
    , m_tree(tree)
    , m_fields(fields)
{
    connect(tree, &SceneTreePanel::selectionChanged, this, &SelectionLink::chooseNode);
    connect(fields, &FieldPanel::fieldChosen, &services, &OrvServices::selectField);
    connect(&services, &OrvServices::selectedNodeChanged, this, &SelectionLink::showNode);
    connect(&services, &OrvServices::selectedFieldChanged, this, &SelectionLink::showField);
}

void SelectionLink::chooseNode(NxFieldContainer* node)
{
    if (node == m_services.getSelectedNode())
        return;
    if (NxField* kept = keptField(node))
        m_services.select(node, kept);
    else
        m_services.selectNode(node);
}

NxField* SelectionLink::keptField(NxFieldContainer* node) const
{
    const NxField* before = m_services.getSelectedField();
    NxFieldContainer* container = m_services.getSelectedNode();
    if (before == nullptr || container == nullptr || node == nullptr)
        return nullptr;
    NxField* same = node->getField(container->getFieldName(before));
    return same != nullptr && same->getTypeId() == before->getTypeId() ? same : nullptr;
}

void SelectionLink::showNode(NxFieldContainer* node)
{
    if (m_fields->model()->node() != node)
        m_fields->setNode(node);
    if (m_tree->selectedNode() != node)
        m_tree->select(m_tree->model()->findNode(node));
}

void SelectionLink::showField(NxField* field)
{
    // A plug-in may select a field of a node that isn't selected.
    if (field != nullptr && field->getContainer() != m_services.getSelectedNode())
        m_services.select(field->getContainer(), field);
    else
        m_fields->setCurrentField(field);
}
