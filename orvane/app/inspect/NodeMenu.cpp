#include "orvane/app/inspect/NodeMenu.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldClipboard.h"
#include "orvane/app/find/FindEdit.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/ApplicableEdits.h"
#include "orvane/app/structure/NodeActions.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxCamera.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QTreeView>

namespace {

/// What is rarely used from the menu.
bool isMove(const QAction& action)
{
    return action.objectName().startsWith(QStringLiteral("node.move"));
}

bool isAboutNodes(const QAction& action)
{
    return action.objectName().startsWith(QStringLiteral("node."));
}

} // namespace

NodeMenu::NodeMenu(Session& session, SceneTreePanel* tree, SceneView* view, Inspectors& inspectors, CameraMenu* cameras,
    NodeActions& edits, const QList<QAction*>& editActions)
    : QObject(tree)
    , m_session(session)
    , m_tree(tree)
    , m_view(view)
    , m_inspectors(inspectors)
    , m_cameras(cameras)
    , m_edits(edits)
    , m_editActions(editActions)
    , m_writer(session.services())
    , m_copyPath(add("node.copyPath", QT_TR_NOOP("Copy Pat&h"),
          QT_TR_NOOP("Copies the path of the selected node in the scene"), Qt::CTRL | Qt::SHIFT | Qt::Key_C,
          &NodeMenu::copyPath))
    , m_copyFields(add("node.copyFields", QT_TR_NOOP("Copy All F&ields"),
          QT_TR_NOOP("Copies the values of all fields of the node"), Qt::CTRL | Qt::ALT | Qt::Key_C,
          &NodeMenu::copyFields))
    , m_pasteFields(add("node.pasteFields", QT_TR_NOOP("Pa&ste All Fields"),
          QT_TR_NOOP("Writes the values of the clipboard to the fields of the node"), Qt::CTRL | Qt::ALT | Qt::Key_V,
          &NodeMenu::pasteFields))
    , m_findClass(add("node.findClass", QT_TR_NOOP("&Find Nodes of This Class"),
          QT_TR_NOOP("Searches the tree for nodes of the class of the selected node"), Qt::CTRL | Qt::SHIFT | Qt::Key_F,
          &NodeMenu::findClass))
    , m_lock(add("inspector.lockOnNode", QT_TR_NOOP("Loc&k Inspector on This"),
          QT_TR_NOOP("Keeps fields and editors on the node that is selected in the tree"), {}, &NodeMenu::lock))
    , m_lookThrough(add("node.lookThrough", QT_TR_NOOP("Look Thro&ugh Camera"),
          QT_TR_NOOP("Shows in the view what the selected camera sees"), {}, &NodeMenu::lookThrough))
{
    // A click comes to the viewport, a key to the view.
    tree->view()->installEventFilter(this);
    tree->view()->viewport()->installEventFilter(this);
    connect(view, &SceneView::menuRequested, this,
        [this](const QPoint& place) { show(place, m_tree->selected().isValid()); });
    connect(tree, &SceneTreePanel::selectionChanged, this, &NodeMenu::update);
    orvane::followLanguage(this, [this] { update(); });
}

NodeMenu::~NodeMenu() = default;

QAction* NodeMenu::add(
    const char* name, const char* text, const char* statusTip, const QKeySequence& key, void (NodeMenu::*run)())
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, statusTip] {
        action->setText(tr(text));
        action->setStatusTip(tr(statusTip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    m_tree->view()->addAction(action);
    m_view->addAction(action);
    return action;
}

void NodeMenu::update()
{
    const NxNode* const node = m_tree->selectedNode();
    const QString reason = node == nullptr ? tr("Select a node first.") : QString();
    for (QAction* const action : {m_copyPath, m_copyFields, m_pasteFields, m_findClass, m_lock})
        orvane::setReason(*action, reason);
    const bool isCamera = dynamic_cast<const NxCamera*>(node) != nullptr;
    orvane::setReason(*m_lookThrough, isCamera ? QString() : tr("Select a camera first."));
}

QAction* NodeMenu::viewAction(const char* name) const
{
    return m_view->findChild<QAction*>(QLatin1String(name));
}

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
    } else {
        menu->addMenu(m_cameras->update());
        // What else the view can do, with its keys.
        menu->addSeparator();
        for (QAction* const action : m_view->actions()) {
            // What is about nodes alone needs one.
            if (!m_editActions.contains(action) && (action->isEnabled() || !isAboutNodes(*action)))
                menu->addAction(action);
        }
    }
    menu->popup(globalPlace);
}

void NodeMenu::addNodeActions(QMenu& menu)
{
    addEditActions(menu);
    menu.addAction(m_inspectors.favoriteAction());
    menu.addSeparator();
    menu.addActions({m_findClass, m_copyPath});
    addFieldActions(menu);
    menu.addSeparator();
    menu.addActions({m_lock, m_inspectors.newAction()});
    menu.addSeparator();
    if (m_lookThrough->isEnabled())
        menu.addAction(m_lookThrough);
    if (QAction* const frame = viewAction("view.frameSelection"))
        menu.addAction(frame);
    addOthers(menu);
}

/// Those that would change something. The steps within the tree are in a menu of their own.
void NodeMenu::addEditActions(QMenu& menu)
{
    const ApplicableEdits applicable(
        *m_edits.editor().scene(), m_edits.editor().selected(), QGuiApplication::clipboard()->mimeData());
    auto* const moves = new QMenu(tr("&Move"), &menu);
    moves->setObjectName(QStringLiteral("nodeMoveMenu"));
    for (QAction* const action : m_editActions) {
        if (!applicable.has(*action))
            continue;
        if (isMove(*action)) {
            if (moves->isEmpty())
                menu.addMenu(moves);
            moves->addAction(action);
        } else if (action->objectName() != QStringLiteral("node.keepPlace")) {
            menu.addAction(action);
        } else if (!moves->isEmpty()) {
            moves->addSeparator();
            moves->addAction(action);
        }
    }
}

void NodeMenu::addFieldActions(QMenu& menu)
{
    NxNode* const node = m_tree->selectedNode();
    if (node == nullptr || node->getFields().empty())
        return;
    QMenu* const fields = menu.addMenu(tr("Fields as Te&xt"));
    fields->setObjectName(QStringLiteral("nodeFieldsMenu"));
    fields->addAction(m_copyFields);
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (data != nullptr && data->hasText())
        fields->addAction(m_pasteFields);
}

/// What other parts of the window can do with the selected nodes.
void NodeMenu::addOthers(QMenu& menu)
{
    const QList<QAction*> own = menu.actions() + m_editActions + QList<QAction*>{m_copyFields, m_pasteFields};
    menu.addSeparator();
    for (const QWidget* const widget : {static_cast<QWidget*>(m_tree->view()), static_cast<QWidget*>(m_view)}) {
        for (QAction* const action : widget->actions()) {
            const bool isThere = own.contains(action) || menu.actions().contains(action);
            if (!isThere && isAboutNodes(*action) && action->isEnabled() && action->isVisible())
                menu.addAction(action);
        }
    }
}

void NodeMenu::lock()
{
    m_inspectors.lockOnSelected();
}

void NodeMenu::lookThrough()
{
    if (const std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected()); !path.empty())
        m_cameras->follow(path);
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

void NodeMenu::findClass()
{
    const NxNode* const node = m_tree->selectedNode();
    auto* const edit = m_tree->findChild<FindEdit*>();
    if (node == nullptr || edit == nullptr)
        return;
    edit->setFocus(Qt::ShortcutFocusReason); // which ends an edit elsewhere first
    edit->setText(QStringLiteral("t:") + QString::fromUtf8(node->getClassName()));
}
