#include "orvane/app/inspect/Inspectors.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/inspect/FavoriteActions.h"
#include "orvane/app/inspect/FavoriteNodes.h"
#include "orvane/app/inspect/FavoriteStrip.h"
#include "orvane/app/inspect/FieldTitleBars.h"
#include "orvane/app/inspect/InspectorDock.h"
#include "orvane/app/inspect/InspectorDocks.h"
#include "orvane/app/inspect/KeptLocks.h"
#include "orvane/app/inspect/LockAction.h"
#include "orvane/app/inspect/LockStatus.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/inspect/PlaceActions.h"
#include "orvane/app/inspect/SelectionLink.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolBar>

#include <chrono>

Inspectors::Inspectors(Session& session, SceneTreePanel* tree, FieldPanel* fields, QMainWindow* window)
    : QObject(window)
    , m_session(session)
    , m_tree(tree)
    , m_window(window)
    , m_lock(new NodeLock(session, tree)) // which lives as long as the link
    , m_link(new SelectionLink(session.services(), tree, fields, *m_lock))
    , m_places(new PlaceActions(session, tree, *m_link, window))
    , m_lockAction(new LockAction(
          *m_lock, [this] { return selectedPath(); }, this))
    , m_docks(new InspectorDocks(session, tree, window))
    , m_kept(new KeptLocks(session, this))
    , m_favorites(new FavoriteNodes(session, tree)) // its view draws them
    , m_favoriteActions(new FavoriteActions(*m_favorites, tree, window))
{
    m_lockAction->setObjectName(QStringLiteral("inspector.lock"));
    m_lockAction->setShortcut(LockAction::keys());
    m_lockAction->addButtonTo(fields->headingTools());
    new FavoriteStrip(session, *m_favorites, tree);
    new FieldTitleBars(session, tree, *m_lock, window);
    connect(m_favoriteActions, &FavoriteActions::refused, this, &Inspectors::showMessage);
    connect(m_docks, &InspectorDocks::added, this, &Inspectors::noteDock);
    connect(m_docks, &InspectorDocks::removed, m_kept, &KeptLocks::remove);
    connect(m_kept, &KeptLocks::lost, this, &Inspectors::showMessage);
    connect(&session.services(), &OrvServices::selectedNodeChanged, m_lockAction, &LockAction::update);
    m_kept->add(1, *m_lock);
    connect(m_lock, &NodeLock::lost, this, &Inspectors::showMessage);
    window->statusBar()->addPermanentWidget(new LockStatus(*m_lock, m_lockAction, window));
}

Inspectors::~Inspectors() = default;

void Inspectors::addToolBar()
{
    QToolBar* const toolBar = m_window->addToolBar(QString());
    orvane::followLanguage(toolBar, [toolBar] { toolBar->setWindowTitle(tr("Selection")); });
    toolBar->setObjectName(QStringLiteral("selectionToolBar"));
    m_places->addTo(toolBar);
    m_favoriteActions->addTo(toolBar);
    toolBar->addAction(m_lockAction);
}

void Inspectors::followReloads(const FileFlow& flow)
{
    m_lock->followReloads(flow);
    m_docks->followReloads(flow);
    m_favorites->followReloads(flow);
}

QList<QAction*> Inspectors::menuActions() const
{
    return {m_places->backAction(), m_places->forwardAction(), favoriteAction(), m_lockAction, m_docks->newAction()};
}

QAction* Inspectors::favoriteAction() const
{
    return m_favoriteActions->toggleAction();
}

QAction* Inspectors::newAction() const
{
    return m_docks->newAction();
}

void Inspectors::lockOnSelected()
{
    m_lock->unlock();
    if (const std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected()); !path.empty())
        m_lock->lock(path);
}

void Inspectors::restoreDocks()
{
    m_docks->restore();
}

void Inspectors::noteDock(InspectorDock* dock)
{
    m_kept->add(dock->number(), dock->lock());
    connect(&dock->lock(), &NodeLock::lost, this, &Inspectors::showMessage);
    connect(&dock->panel(), &FieldPanel::editorRequested, this, [this, dock] {
        const FieldPanel& panel = dock->panel();
        m_link->browse(m_tree->model()->findNode(panel.model()->node()), panel.currentField());
    });
    dock->panel().setSceneFolder([this] { return orvane::folderOf(m_session.document().fileName()); });
    Q_EMIT panelAdded(&dock->panel());
}

void Inspectors::showMessage(const QString& message)
{
    constexpr std::chrono::seconds shown(10);
    m_window->statusBar()->showMessage(message, static_cast<int>(std::chrono::milliseconds(shown).count()));
}

/// Where the selected node is; in the place that is chosen in the tree if it has several.
std::vector<NxNode*> Inspectors::selectedPath() const
{
    const NxFieldContainer* const node = m_session.services().getSelectedNode();
    if (node == nullptr)
        return {};
    SceneTreeModel& model = *m_tree->model();
    return model.path(m_tree->selectedNode() == node ? m_tree->selected() : model.findNode(node));
}
