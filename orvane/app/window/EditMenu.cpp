#include "orvane/app/window/EditMenu.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/NodeActions.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <chrono>
#include <utility>

EditMenu::EditMenu(QMainWindow* window, Session& session, SceneTreePanel* tree)
    : QObject(window)
    , m_session(session)
    , m_menu(window->menuBar()->addMenu(QString()))
    , m_tree(tree)
    , m_nodes(new NodeActions(session, tree))
{
    QMenu* const menu = m_menu;
    orvane::followLanguage(menu, [menu] { menu->setTitle(tr("&Edit")); });
    menu->setObjectName(QStringLiteral("editMenu"));
    const auto add = [menu](const char* text, const QKeySequence& key, const char* name) {
        QAction* action = menu->addAction(QString());
        orvane::followLanguage(action, [action, text] { action->setText(tr(text)); });
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        return action;
    };
    m_undo = add(QT_TR_NOOP("&Undo"), QKeySequence::Undo, "edit.undo");
    orvane::followLanguage(this, [this] { m_undo->setStatusTip(tr("Takes back the last step")); });
    connect(m_undo, &QAction::triggered, &session.services(), &OrvServices::undo);
    m_redo = add(QT_TR_NOOP("&Redo"), {}, "edit.redo");
    m_redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    orvane::followLanguage(this, [this] { m_redo->setStatusTip(tr("Makes the step again that was taken back last")); });
    connect(m_redo, &QAction::triggered, &session.services(), &OrvServices::redo);
    menu->addSeparator();
    m_rename = add(QT_TR_NOOP("Re&name Node"), Qt::Key_F2, "node.rename");
    orvane::followLanguage(
        this, [this] { m_rename->setStatusTip(tr("Edits the name of the selected node in the tree")); });
    connect(m_rename, &QAction::triggered, tree, &SceneTreePanel::renameSelected);
    // Its key acts on the selected node only while the tree or the view has the focus.
    m_rename->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    tree->addNodeAction(m_rename);
    menu->addActions(m_nodes->actions());
    connect(&m_nodes->editor(), &NodeEditor::said, window, [window](const QString& text) {
        constexpr std::chrono::seconds shown(10);
        window->statusBar()->showMessage(text, static_cast<int>(std::chrono::milliseconds(shown).count()));
    });

    connect(&session.services(), &OrvServices::historyChanged, this, &EditMenu::updateActions);
    connect(&session.services(), &OrvServices::documentEdited, this, &EditMenu::updateActions);
    connect(&session.services(), &OrvServices::stepFinished, this, &EditMenu::updateActions);
    connect(tree, &SceneTreePanel::selectionChanged, this, &EditMenu::updateActions);
    connect(tree->model(), &SceneTreeModel::renameRequested, this, &EditMenu::renameNode);
    QCoreApplication::instance()->installEventFilter(this);
    orvane::followLanguage(this, [this] { updateActions(); });
}

EditMenu::~EditMenu() = default;

void EditMenu::addSettings(QAction* action)
{
    m_menu->addSeparator();
    m_menu->addAction(action);
}

void EditMenu::renameNode(NxNode* node, const QString& name)
{
    m_session.services().pushCommand(new RenameNodeCommand(node, orvane::toVbString(name)));
}

QList<QAction*> EditMenu::nodeActions() const
{
    return QList<QAction*>{m_rename} + m_nodes->actions();
}

QList<QAction*> EditMenu::toolBarActions() const
{
    return {m_undo, m_redo};
}

bool EditMenu::eventFilter(QObject* object, QEvent* event)
{
    // A line edit takes the keys of undo and redo even when it has nothing to undo, so they would do nothing right
    // after a value was entered.
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* line = qobject_cast<QLineEdit*>(object);
    if (line == nullptr)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool undo = key->matches(QKeySequence::Undo) && !line->isUndoAvailable();
    const bool redo = key->matches(QKeySequence::Redo) && !line->isRedoAvailable();
    if (undo || redo)
        event->ignore();
    return undo || redo;
}

void EditMenu::updateActions()
{
    const OrvServices& services = m_session.services();
    const auto update = [](QAction* action, bool isEnabled, const QString& text, const QString& step) {
        orvane::setReason(*action, isEnabled ? QString() : tr("There is no such step."));
        action->setText(step.isEmpty() ? text : text + u' ' + orvane::menuText(step));
    };
    update(m_undo, services.canUndo(), tr("&Undo"), services.undoText());
    update(m_redo, services.canRedo(), tr("&Redo"), services.redoText());
    orvane::setReason(*m_rename, m_tree->selected().isValid() ? QString() : tr("Select a node first."));
}
