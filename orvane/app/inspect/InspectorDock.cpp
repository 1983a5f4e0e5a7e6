#include "orvane/app/inspect/InspectorDock.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/inspect/LockAction.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/scene/fields/NxField.h"

#include <QHBoxLayout>
#include <QKeyEvent>

InspectorDock::InspectorDock(int number, Session& session, SceneTreePanel* tree, QWidget* parent)
    : QDockWidget(parent)
    , m_number(number)
    , m_session(session)
    , m_tree(tree)
    , m_panel(new FieldPanel(session.services(), session.settings(), this, QStringLiteral("/inspector%1").arg(number)))
    , m_lock(new NodeLock(session, this))
    , m_lockAction(new LockAction(
          *m_lock, [tree] { return tree->model()->path(tree->selected()); }, this))
{
    orvane::followLanguage(this, [this] { setWindowTitle(tr("Inspector %1").arg(m_number)); });
    setObjectName(QStringLiteral("inspectorDock%1").arg(number));
    m_lockAction->setObjectName(QStringLiteral("inspector.lock%1").arg(number));
    setAttribute(Qt::WA_DeleteOnClose);
    setWidget(m_panel);
    m_panel->setSceneFolder([&session] { return session.document().pathFolder(); });
    m_lockAction->addButtonTo(m_panel->headingTools());
    connect(m_lock, &NodeLock::changed, this, &InspectorDock::follow);
    connect(tree, &SceneTreePanel::selectionChanged, this, &InspectorDock::follow);
    connect(tree->model(), &QAbstractItemModel::dataChanged, m_panel, &FieldPanel::updateHeading);
    connect(m_panel, &FieldPanel::fieldChosen, this, &InspectorDock::choose);
    connect(m_panel, &FieldPanel::nodesFound, &tree->selection(), &NodeSelection::select);
    connect(&session.services(), &OrvServices::selectedFieldChanged, this, &InspectorDock::showField);
    connect(&session.document(), &SceneDocument::sceneAboutToChange, this, [this] { m_panel->setNode(nullptr); });
    follow();
}

InspectorDock::~InspectorDock() = default;

void InspectorDock::follow()
{
    m_lockAction->update();
    NxNode* const node = m_lock->isOn() ? m_lock->node() : m_tree->selectedNode();
    const auto selected = m_lock->isOn() ? nullptr : m_tree->selection().nodes();
    const bool areSeveral = selected && selected->size() > 1;
    const FieldTableModel& model = *m_panel->model();
    if (areSeveral ? model.nodes() == selected : model.node() == node && model.nodeCount() <= 1)
        return;
    if (areSeveral)
        m_panel->setNodes(selected);
    else
        m_panel->setNode(node);
    showField(m_session.services().getSelectedField());
}

// The editors show a field of the selected node; another one is edited in the table alone.
void InspectorDock::choose(NxField* field)
{
    if (m_panel->model()->node() == m_session.services().getSelectedNode())
        m_session.services().selectField(field);
}

void InspectorDock::showField(const NxField* field)
{
    if (field != nullptr && field->getContainer() == m_panel->model()->node())
        m_panel->setCurrentField(field);
}

bool InspectorDock::event(QEvent* event)
{
    // With the focus in here the key of the lock is about this one.
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QDockWidget::event(event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    // The user may have given the lock of the first inspector another key.
    const auto* const first = parentWidget()->findChild<QAction*>(QStringLiteral("inspector.lock"));
    if (QKeySequence(key->keyCombination()) != (first != nullptr ? first->shortcut() : LockAction::keys()))
        return QDockWidget::event(event);
    if (event->type() == QEvent::KeyPress && m_lockAction->isEnabled())
        m_lockAction->toggle();
    event->accept();
    return true;
}
