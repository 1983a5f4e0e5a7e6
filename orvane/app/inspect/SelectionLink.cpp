#include "orvane/app/inspect/SelectionLink.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"

#include <QScopedValueRollback>

SelectionLink::SelectionLink(OrvServices& services, SceneTreePanel* tree, FieldPanel* fields, NodeLock& lock)
    : QObject(tree)
    , m_services(services)
    , m_tree(tree)
    , m_fields(fields)
    , m_lock(lock)
{
    connect(tree, &SceneTreePanel::selectionChanged, this, &SelectionLink::chooseNode);
    connect(fields, &FieldPanel::fieldChosen, &services, &OrvServices::selectField);
    connect(&services, &OrvServices::selectedNodeChanged, this, &SelectionLink::showNode);
    connect(&services, &OrvServices::selectedFieldChanged, this, &SelectionLink::showField);
    connect(&lock, &NodeLock::changed, this, &SelectionLink::followTree);
    connect(fields, &FieldPanel::nodesFound, &tree->selection(), &NodeSelection::select);
}

void SelectionLink::browse(const QModelIndex& index, NxField* field)
{
    m_tree->select(index);
    if (field == nullptr ? !m_lock.isOn() : !m_lock.isOn() || field->getContainer() == m_lock.node())
        m_services.selectField(field);
}

void SelectionLink::chooseNode(NxFieldContainer* node)
{
    if (node == m_services.getSelectedNode() || m_lock.isOn())
        showNodes();
    else
        selectNode(node);
}

void SelectionLink::selectNode(NxFieldContainer* node)
{
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

// Once the lock is off.
void SelectionLink::followTree()
{
    if (m_lock.isOn() && m_services.getSelectedNode() != m_lock.node())
        selectNode(m_lock.node()); // it went on to another node by itself
    else if (!m_isShowing)
        chooseNode(m_tree->selectedNode());
}

void SelectionLink::showNode(NxFieldContainer* node)
{
    const QScopedValueRollback showing(m_isShowing, true);
    showNodes();
    if (m_lock.isOn() && node == m_lock.node())
        return;
    m_lock.giveUp(node != nullptr ? tr("another node was selected") : tr("nothing is selected any more"));
    if (m_tree->selectedNode() != node)
        m_tree->select(m_tree->model()->findNode(node));
}

void SelectionLink::showNodes()
{
    NxFieldContainer* const node = m_services.getSelectedNode();
    const auto selected = m_tree->selection().nodes();
    const bool areSeveral = selected && selected->size() > 1 && selected->front().get() == node && !m_lock.isOn();
    const FieldTableModel& model = *m_fields->model();
    if (areSeveral ? model.nodes() == selected : model.node() == node && model.nodeCount() <= 1)
        return;
    if (areSeveral)
        m_fields->setNodes(selected);
    else
        m_fields->setNode(node);
    m_fields->setCurrentField(m_services.getSelectedField());
}

void SelectionLink::showField(NxField* field)
{
    // A plug-in may select a field of a node that isn't selected.
    if (field != nullptr && field->getContainer() != m_services.getSelectedNode())
        m_services.select(field->getContainer(), field);
    else
        m_fields->setCurrentField(field);
}
