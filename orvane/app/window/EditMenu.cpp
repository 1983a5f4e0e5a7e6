#include "orvane/app/window/EditMenu.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/DrawnIcon.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace {

/// An arrow that turns back, to the left; mirrored it turns to the right.
QIcon turningArrow(const QPalette& palette, bool mirrored)
{
    return orvane::drawnIcon([palette, mirrored](QPainter& painter, QIcon::Mode mode) {
        if (mirrored) {
            painter.translate(16, 0);
            painter.scale(-1, 1);
        }
        const QColor color
            = palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        painter.setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap));
        QPainterPath path(QPointF(3.5, 6));
        path.lineTo(9.5, 6);
        path.arcTo(QRectF(6, 6, 7, 7), 90, -180);
        path.lineTo(6, 13);
        painter.drawPath(path);
        painter.setBrush(color);
        painter.drawPolygon(QPolygonF{{2, 6}, {5.5, 3}, {5.5, 9}});
    });
}

} // namespace

EditMenu::EditMenu(QMainWindow* window, Session& session, SceneTreePanel* tree)
    : QObject(window)
    , m_session(session)
    , m_tree(tree)
{
    QMenu* menu = window->menuBar()->addMenu(tr("&Edit"));
    menu->setObjectName(QStringLiteral("editMenu"));
    const auto add = [menu](const QString& text, const QKeySequence& key, const char* name) {
        QAction* action = menu->addAction(text);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        return action;
    };
    m_undo = add(tr("&Undo"), QKeySequence::Undo, "edit.undo");
    m_undo->setIcon(turningArrow(window->palette(), false));
    m_undo->setStatusTip(tr("Takes back the last step"));
    connect(m_undo, &QAction::triggered, &session.services(), &OrvServices::undo);
    m_redo = add(tr("&Redo"), {}, "edit.redo");
    m_redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    m_redo->setIcon(turningArrow(window->palette(), true));
    m_redo->setStatusTip(tr("Makes the step again that was taken back last"));
    connect(m_redo, &QAction::triggered, &session.services(), &OrvServices::redo);
    menu->addSeparator();
    m_rename = add(tr("Re&name Node"), Qt::Key_F2, "node.rename");
    m_rename->setStatusTip(tr("Edits the name of the selected node in the tree"));
    connect(m_rename, &QAction::triggered, tree, &SceneTreePanel::renameSelected);
    m_delete = add(tr("&Delete Node"), QKeySequence::Delete, "node.delete");
    m_delete->setStatusTip(tr("Removes the selected node from the scene"));
    connect(m_delete, &QAction::triggered, this, &EditMenu::deleteNode);
    // These keys act on the selected node only while the tree or the view has the focus.
    for (QAction* action : {m_rename, m_delete}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        tree->addNodeAction(action);
    }

    connect(&session.services(), &OrvServices::historyChanged, this, &EditMenu::updateActions);
    connect(&session.services(), &OrvServices::documentEdited, this, &EditMenu::updateActions);
    connect(&session.services(), &OrvServices::stepFinished, this, &EditMenu::updateActions);
    connect(tree, &SceneTreePanel::selectionChanged, this, &EditMenu::updateActions);
    connect(tree->model(), &SceneTreeModel::renameRequested, this, &EditMenu::renameNode);
    QCoreApplication::instance()->installEventFilter(this);
    updateActions();
}

EditMenu::~EditMenu() = default;

void EditMenu::renameNode(NxNode* node, const QString& name)
{
    m_session.services().pushCommand(new RenameNodeCommand(node, orvane::toVbString(name)));
}

void EditMenu::deleteNode()
{
    const QModelIndex index = m_tree->selected();
    NxGroup* group = m_tree->model()->group(index);
    // The rows may be a moment behind the scene.
    const NxNode* node = m_tree->model()->node(index);
    if (group == nullptr)
        return;
    const int place = group->getChild(index.row()) == node ? index.row() : group->findChild(node);
    if (place >= 0)
        m_session.services().pushCommand(new RemoveNodeCommand(group, place, m_session.disposal()));
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
    const bool node = m_tree->selected().isValid();
    const QString reason = node ? QString() : tr("Select a node first.");
    orvane::setReason(*m_rename, reason);
    orvane::setReason(*m_delete, reason);
}
