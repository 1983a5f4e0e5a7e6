#include "orvane/app/structure/NodeActions.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PendingEdits.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/structure/AddNodeDialog.h"
#include "orvane/app/structure/GroupEdits.h"
#include "orvane/app/structure/NodeClipboard.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/NodeSteps.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QAction>
#include <QKeySequence>

NodeActions::NodeActions(Session& session, SceneTreePanel* tree)
    : QObject(tree)
    , m_session(session)
    , m_tree(tree)
    , m_editor(new NodeEditor(session, tree))
    , m_clipboard(new NodeClipboard(session, *m_editor))
{
    addClipboard();
    addSeparator();
    addCreation();
    addEdits();
    addSeparator();
    addMoves();
    addKeepPlace();
    connect(tree, &SceneTreePanel::selectionChanged, this, &NodeActions::updateActions);
    connect(&session.document(), &SceneDocument::sceneChanged, this, &NodeActions::updateActions);
    orvane::followLanguage(this, [this] { updateActions(); });
}

NodeActions::~NodeActions() = default;

QAction* NodeActions::add(const char* name, const char* text, const QKeySequence& key, const char* tip)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    // Lines and tables elsewhere have the same keys for other things.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tree->addNodeAction(action);
    m_actions.append(action);
    return action;
}

void NodeActions::addEdit(
    const char* name, const char* text, const QKeySequence& key, const char* tip, const Make& make)
{
    QAction* const action = add(name, text, key, tip);
    connect(action, &QAction::triggered, this, [this, make] { run(make); });
    m_needSelection.append(action);
}

void NodeActions::addSeparator()
{
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    m_actions.append(separator);
}

void NodeActions::addClipboard()
{
    const auto onSelected = [this](void (NodeClipboard::*act)(const meridane::NodeSet&)) {
        return [this, act] {
            orvane::commitPendingEdit();
            if (const meridane::NodeSet selected = m_editor->selected(); !selected.empty())
                (m_clipboard->*act)(selected);
        };
    };
    QAction* const cut = add(
        "node.cut", QT_TR_NOOP("Cu&t"), QKeySequence::Cut, QT_TR_NOOP("Moves the selected nodes to the clipboard"));
    connect(cut, &QAction::triggered, this, onSelected(&NodeClipboard::cut));
    QAction* const copy = add("node.copy", QT_TR_NOOP("&Copy"), QKeySequence::Copy,
        QT_TR_NOOP("Copies the selected nodes to the clipboard, as text too"));
    connect(copy, &QAction::triggered, this, onSelected(&NodeClipboard::copy));
    m_needSelection << cut << copy;
    QAction* const paste = add("node.paste", QT_TR_NOOP("&Paste"), QKeySequence::Paste,
        QT_TR_NOOP("Adds the nodes of the clipboard to the selected group, or behind the selected node"));
    connect(paste, &QAction::triggered, m_clipboard, &NodeClipboard::paste);
    QAction* const share = add("node.pasteShared", QT_TR_NOOP("Paste a&s Shared"), Qt::CTRL | Qt::SHIFT | Qt::Key_V,
        QT_TR_NOOP("Lets the nodes that were copied be in this place as well, so that a change is seen in both"));
    connect(share, &QAction::triggered, m_clipboard, &NodeClipboard::pasteShared);
    m_needScene << paste << share;
}

void NodeActions::addCreation()
{
    QAction* const action = add("node.add", QT_TR_NOOP("&Add Node…"), {},
        QT_TR_NOOP("Adds a node of a class that you choose to the selected group, or behind the selected node"));
    action->setShortcuts({QKeySequence(Qt::Key_Insert), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)});
    connect(action, &QAction::triggered, this, &NodeActions::chooseClass);
    m_needScene << action;
}

void NodeActions::chooseClass()
{
    if (m_editor->scene() == nullptr)
        return;
    orvane::commitPendingEdit();
    const NodeSpot spot = m_editor->spotForAdding();
    const QString place = spot.path.size() == 1 ? tr("The node comes to the top of the scene.")
                                                : tr("The node comes into %1.").arg(orvane::nodeName(spot.group()));
    auto* const dialog = new AddNodeDialog(place, m_tree->window());
    connect(dialog, &AddNodeDialog::chosen, this, &NodeActions::addNode);
    dialog->open();
}

void NodeActions::addNode(NxType type)
{
    const NxRef<NxNode> node(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
    if (node && m_editor->scene() != nullptr)
        m_editor->apply(NodeEdits::insert(std::span(&node, 1), m_editor->spotForAdding(), NodeEdits::Names::Keep));
}

void NodeActions::addEdits()
{
    using Set = meridane::NodeSet;
    const auto edits = [this] { return NodeEdits(*m_editor->scene()); };
    const auto groups = [this] { return GroupEdits(*m_editor->scene()); };
    addEdit("node.duplicate", QT_TR_NOOP("Dup&licate"), Qt::CTRL | Qt::Key_D,
        QT_TR_NOOP("Copies the selected nodes behind themselves"),
        [edits](const Set& set) { return edits().duplicate(set); });
    addEdit("node.delete", QT_TR_NOOP("&Delete Node"), QKeySequence::Delete,
        QT_TR_NOOP("Removes the selected nodes with everything below them"),
        [edits](const Set& set) { return edits().remove(set); });
    addSeparator();
    addEdit("node.group", QT_TR_NOOP("&Group"), Qt::CTRL | Qt::Key_G,
        QT_TR_NOOP("Puts the selected nodes into a new group"),
        [this, groups](const Set& set) { return groups().group(set, m_editor->places()); });
    addEdit("node.ungroup", QT_TR_NOOP("Ungr&oup"), Qt::CTRL | Qt::SHIFT | Qt::Key_G,
        QT_TR_NOOP("Replaces the selected groups by what is in them"),
        [this, groups](const Set& set) { return groups().ungroup(set, m_editor->places()); });
    addEdit("node.makeOwn", QT_TR_NOOP("Make Own Cop&y"), {},
        QT_TR_NOOP("Gives these places a copy of their own of a node that is in other places as well"),
        [groups](const Set& set) { return groups().makeOwn(set); });
}

void NodeActions::addMoves()
{
    using Set = meridane::NodeSet;
    const auto key = [](Qt::Key arrow) { return QKeySequence(Qt::ALT | Qt::SHIFT | arrow); };
    const auto steps = [this] { return NodeSteps(*m_editor->scene()); };
    addEdit("node.moveUp", QT_TR_NOOP("&Move Up"), key(Qt::Key_Up),
        QT_TR_NOOP("Moves the selected nodes before the node above them"),
        [steps](const Set& set) { return steps().up(set); });
    addEdit("node.moveDown", QT_TR_NOOP("Move Do&wn"), key(Qt::Key_Down),
        QT_TR_NOOP("Moves the selected nodes behind the node below them"),
        [steps](const Set& set) { return steps().down(set); });
    addEdit("node.moveOut", QT_TR_NOOP("Mov&e Out of Group"), key(Qt::Key_Left),
        QT_TR_NOOP("Moves the selected nodes behind the group that they are in"),
        [this, steps](const Set& set) { return steps().out(set, m_editor->places()); });
    addEdit("node.moveIn", QT_TR_NOOP("Move into Group A&bove"), key(Qt::Key_Right),
        QT_TR_NOOP("Moves the selected nodes to the end of the group above them"),
        [this, steps](const Set& set) { return steps().in(set, m_editor->places()); });
}

void NodeActions::addKeepPlace()
{
    const QString settingsKey = QStringLiteral("structure/keepPlace");
    QAction* const action = add("node.keepPlace", QT_TR_NOOP("&Keep Place"), {},
        QT_TR_NOOP("Nodes stay where they are in the world when they move to other groups"));
    action->setCheckable(true);
    SettingsStore& store = SettingsStore::of(m_session.settings());
    store.follow(settingsKey, action, [this, &store, action, settingsKey] {
        action->setChecked(store.isOn(settingsKey));
        m_editor->setPlaces(action->isChecked() ? NodePlaces::Keep : NodePlaces::Change);
    });
    connect(action, &QAction::toggled, &store, [&store, settingsKey](bool keeps) { store.set(settingsKey, keeps); });
}

void NodeActions::run(const Make& make)
{
    orvane::commitPendingEdit();
    const meridane::NodeSet selected = m_editor->selected();
    if (!selected.empty())
        m_editor->apply(make(selected));
}

void NodeActions::updateActions()
{
    const bool hasSelection = m_tree->selected().isValid();
    for (QAction* const action : m_needSelection)
        orvane::setReason(*action, hasSelection ? QString() : tr("No node is selected."));
    for (QAction* const action : m_needScene)
        orvane::setReason(*action, m_editor->scene() != nullptr ? QString() : tr("No scene is open."));
}
