#include "orvane/app/inspect/NodeMenu.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldClipboard.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QTreeView>

NodeMenu::NodeMenu(Session& session, SceneTreePanel* tree, SceneView* view, Inspectors& inspectors, CameraMenu* cameras,
    const QList<QAction*>& editActions)
    : QObject(tree)
    , m_session(session)
    , m_tree(tree)
    , m_view(view)
    , m_inspectors(inspectors)
    , m_cameras(cameras)
    , m_editActions(editActions)
    , m_writer(session.services())
{
    // A click comes to the viewport, a key to the view.
    tree->view()->installEventFilter(this);
    tree->view()->viewport()->installEventFilter(this);
    connect(view, &SceneView::menuRequested, this,
        [this](const QPoint& place) { show(place, m_tree->selected().isValid()); });
}

NodeMenu::~NodeMenu() = default;

bool NodeMenu::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    QTreeView* const view = m_tree->view();
    const auto* const request = static_cast<QContextMenuEvent*>(event);
    if (request->reason() == QContextMenuEvent::Keyboard) {
        const QModelIndex selected = m_tree->selected();
        const QPoint place
            = selected.isValid() ? view->visualRect(selected).center() : view->viewport()->rect().center();
        show(view->viewport()->mapToGlobal(place), selected.isValid());
        return true;
    }
    if (object != view->viewport())
        return false;
    const QModelIndex index = view->indexAt(request->pos());
    if (!view->selectionModel()->isSelected(index)) // which may be one of several
        m_tree->select(index.siblingAtColumn(SceneTreeModel::NameColumn));
    show(request->globalPos(), index.isValid());
    return true;
}

void NodeMenu::show(const QPoint& globalPlace, bool isOnNode)
{
    if (!m_session.document().isOpen())
        return;
    auto* const menu = new QMenu(m_tree->window());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("nodeMenu"));
    if (isOnNode) {
        addNodeActions(*menu);
        menu->addAction(tr("Frame &All"), m_view, &SceneView::frameAll);
    }
    if (!isOnNode) {
        menu->addMenu(m_cameras->update());
        // What else the view can do, with its keys.
        menu->addSeparator();
        for (QAction* const action : m_view->actions()) {
            if (!m_editActions.contains(action))
                menu->addAction(action);
        }
    }
    menu->popup(globalPlace);
}

void NodeMenu::addNodeActions(QMenu& menu)
{
    menu.addActions(m_editActions);
    menu.addAction(m_inspectors.favoriteAction());
    menu.addSeparator();
    menu.addAction(tr("Copy &Path"), this, &NodeMenu::copyPath);
    menu.addAction(tr("&Copy All Fields"), this, &NodeMenu::copyFields);
    menu.addAction(tr("Paste All &Fields"), this, &NodeMenu::pasteFields);
    menu.addSeparator();
    menu.addAction(tr("&Lock Inspector on This"), &m_inspectors, &Inspectors::lockOnSelected);
    menu.addAction(m_inspectors.newAction());
    menu.addSeparator();
    menu.addAction(tr("Frame &Selection"), m_view, &SceneView::frameSelection);
}

void NodeMenu::copyPath()
{
    const std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected());
    if (const NxGroup* const scene = m_session.document().scene(); scene != nullptr && !path.empty())
        QGuiApplication::clipboard()->setText(orvane::toQString(NxScenePath::toText(scene, path)));
}

void NodeMenu::copyFields()
{
    NxNode* const node = m_tree->selectedNode();
    if (node == nullptr)
        return;
    const std::vector<NxField*> fields = node->getFields();
    if (fields.empty())
        m_inspectors.showMessage(tr("%1 has no fields to copy.").arg(orvane::nodeName(*node)));
    else
        QGuiApplication::clipboard()->setMimeData(
            orvane::fieldsMimeData(std::vector<const NxField*>(fields.begin(), fields.end())).release());
}

void NodeMenu::pasteFields()
{
    NxNode* const node = m_tree->selectedNode();
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (node == nullptr || data == nullptr)
        return;
    std::vector<FieldSet> rows;
    for (NxField* const field : node->getFields())
        rows.emplace_back(*field);
    const auto result = orvane::pasteFields(m_writer, rows, *data, orvane::nodeName(*node));
    if (const QString message = result ? result.value() : result.error(); !message.isEmpty())
        m_inspectors.showMessage(message);
}
