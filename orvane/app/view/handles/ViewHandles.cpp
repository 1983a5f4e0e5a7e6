#include "orvane/app/view/handles/ViewHandles.h"

#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingActions.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/handles/HandleNote.h"
#include "orvane/app/view/handles/HandleTool.h"
#include "orvane/app/view/handles/HoverTool.h"
#include "orvane/app/view/handles/SymbolTool.h"
#include "orvane/app/view/handles/TransformAboveCommand.h"

#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <algorithm>

using namespace meridane;

namespace {

const QString kindKey = QStringLiteral("view/handles");
const QString axesKey = QStringLiteral("view/handleAxes");
const QString symbolsKey = QStringLiteral("view/symbols");

/// The value of the setting that an action chooses: "move" for "view.handlesMove".
QString wordBehind(const char* prefix, const char* name)
{
    return QLatin1String(name).mid(QLatin1String(prefix).size()).toString().toLower();
}

/// Whether a transform above the node would move anything.
bool hasExtent(const NxNode& node)
{
    return dynamic_cast<const NxGroup*>(&node) != nullptr || dynamic_cast<const NxMesh*>(&node) != nullptr;
}

bool needsTransform(const HandleTargets::Path& path)
{
    return hasExtent(*path.back()) && !NodePlacement::can(*path.back(), HandleTargets::Kind::Move);
}

} // namespace

ViewHandles::ViewHandles(Session& session, SceneView* view, SceneTreePanel* tree)
    : QObject(view)
    , m_session(session)
    , m_view(view)
    , m_tree(tree)
    , m_hoverTool(new HoverTool(view))
    , m_symbolTool(new SymbolTool(view, tree))
    , m_tool(new HandleTool(view, tree, session.services()))
    , m_note(new HandleNote(view))
    , m_menu(new QMenu(view))
    , m_kinds(new QActionGroup(this))
    , m_axes(new QActionGroup(this))
    , m_symbols(new QAction(this))
{
    orvane::followLanguage(this, [this] {
        m_menu->setTitle(tr("&Handles"));
        m_symbols->setText(tr("S&ymbols"));
    });
    m_menu->setObjectName(QStringLiteral("handlesMenu"));
    addKind({}, "view.handlesNone", QT_TR_NOOP("&None"), QT_TR_NOOP("Shows no handles in the view"), Qt::Key_Q);
    addKind(Kind::Move, "view.handlesMove", QT_TR_NOOP("&Move"), QT_TR_NOOP("Shows handles that move what is selected"),
        Qt::Key_W);
    addKind(Kind::Turn, "view.handlesTurn", QT_TR_NOOP("&Turn"), QT_TR_NOOP("Shows handles that turn what is selected"),
        Qt::Key_E);
    addKind(Kind::Scale, "view.handlesScale", QT_TR_NOOP("&Scale"),
        QT_TR_NOOP("Shows handles that scale what is selected"), Qt::Key_R);
    m_menu->addSeparator();
    addAxes(HandleAxes::World, "view.axesWorld", QT_TR_NOOP("&World Axes"),
        QT_TR_NOOP("Handles have the axes of the scene"));
    addAxes(HandleAxes::Parent, "view.axesParent", QT_TR_NOOP("&Parent Axes"),
        QT_TR_NOOP("Handles have the axes of the group above the node that was selected last"));
    addAxes(HandleAxes::Own, "view.axesOwn", QT_TR_NOOP("&Own Axes"),
        QT_TR_NOOP("Handles have the axes of the node that was selected last"));
    addSymbols();
    connect(m_tool, &HandleTool::changed, this, &ViewHandles::showNote);
    connect(m_tool, &HandleTool::refused, m_note, [this](const QString& reason) { m_note->showText(reason); });
    connect(m_note, &HandleNote::accepted, this, &ViewHandles::putTransformsAbove);
}

QAction* ViewHandles::menuAction() const
{
    return m_menu->menuAction();
}

void ViewHandles::addSymbols()
{
    m_symbols->setObjectName(QStringLiteral("view.symbols"));
    orvane::followLanguage(this, [this] {
        m_symbols->setToolTip(tr("Shows lights and cameras as symbols, which can be clicked"));
        m_symbols->setStatusTip(m_symbols->toolTip());
    });
    orvane::followSwitch(SettingsStore::of(m_session.settings()), symbolsKey, m_symbols);
    m_symbolTool->setShown(m_symbols->isChecked());
    connect(m_symbols, &QAction::toggled, m_symbolTool, [this](bool shown) { m_symbolTool->setShown(shown); });
}

QAction* ViewHandles::addAction(QActionGroup* group, const char* name, const char* text, const char* tip)
{
    QAction* const action = m_menu->addAction(QString());
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setToolTip(tr(tip));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    group->addAction(action);
    return action;
}

void ViewHandles::addKind(std::optional<Kind> kind, const char* name, const char* text, const char* tip, Qt::Key key)
{
    QAction* const action = addAction(m_kinds, name, text, tip);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(action);
    const auto apply = [this, kind](bool isChosen) {
        if (isChosen)
            m_tool->setKind(kind);
    };
    orvane::followChoice(SettingsStore::of(m_session.settings()), kindKey, wordBehind("view.handles", name), action);
    apply(action->isChecked());
    connect(action, &QAction::toggled, m_tool, apply);
}

void ViewHandles::addAxes(HandleAxes axes, const char* name, const char* text, const char* tip)
{
    QAction* const action = addAction(m_axes, name, text, tip);
    const auto apply = [this, axes](bool isChosen) {
        if (isChosen)
            m_tool->setAxes(axes);
    };
    orvane::followChoice(SettingsStore::of(m_session.settings()), axesKey, wordBehind("view.axes", name), action);
    apply(action->isChecked());
    connect(action, &QAction::toggled, m_tool, apply);
}

QString ViewHandles::reason(const NxNode& node, Kind kind) const
{
    if (dynamic_cast<const NxLight*>(&node) != nullptr || dynamic_cast<const NxCamera*>(&node) != nullptr) {
        if (kind == Kind::Scale)
            return tr("\"%1\" has no size that could be scaled.");
        return kind == Kind::Move ? tr("\"%1\" shines from very far away, so it has no place. Turn it with E.")
                                  : tr("\"%1\" shines into all directions, so it can't be turned. Move it with W.");
    }
    if (!hasExtent(node))
        return tr("\"%1\" has no place in the scene, so it can't be moved. Select what it applies to.");
    switch (kind) {
    case Kind::Move:
        return tr("\"%1\" has no transform that could move it.");
    case Kind::Turn:
        return tr("\"%1\" has no transform that could turn it.");
    case Kind::Scale:
        return tr("\"%1\" has no transform that could scale it.");
    }
    return {};
}

void ViewHandles::showNote()
{
    const HandleTargets& targets = m_tool->targets();
    if (!m_tool->kind() || targets.isEmpty()) {
        m_note->showText({});
        return;
    }
    const Kind kind = *m_tool->kind();
    const auto cannot = [kind](const HandleTargets::Path& path) { return !NodePlacement::can(*path.back(), kind); };
    const auto count = std::count_if(targets.paths().begin(), targets.paths().end(), cannot);
    const bool offers = std::any_of(targets.paths().begin(), targets.paths().end(), needsTransform);
    if (count == 0) {
        m_note->showText({});
        return;
    }
    const NxNode& last = *targets.last().back();
    const QString offer = offers ? tr("Put a Transform above") : QString();
    if (targets.paths().size() == 1)
        m_note->showText(reason(last, kind).arg(orvane::nodeName(last)), offer);
    else
        m_note->showText(tr("%1 of the %2 selected nodes have nothing that could change like that.")
                             .arg(count)
                             .arg(targets.paths().size()),
            offer);
}

void ViewHandles::putTransformsAbove()
{
    // The nodes are held, so that they are there although the selection changes.
    const std::vector<HandleTargets::Path> paths = m_tool->targets().paths();
    std::vector<std::vector<NxNode*>> selected;
    OrvServices& services = m_session.services();
    services.beginEdit(tr("Put Transform above"));
    for (const HandleTargets::Path& path : paths) {
        std::vector<NxNode*> nodes;
        for (const NxRef<NxNode>& node : path)
            nodes.push_back(node.get());
        auto* const group = path.size() > 1 ? dynamic_cast<NxGroup*>(nodes[nodes.size() - 2]) : m_view->scene();
        const int index = group != nullptr ? group->findChild(nodes.back()) : -1;
        if (needsTransform(path) && index >= 0) {
            auto* const command = new TransformAboveCommand(group, index);
            nodes.back() = command->transform();
            services.pushCommand(command);
        }
        selected.push_back(std::move(nodes));
    }
    services.endEdit();
    QModelIndexList indexes;
    for (const std::vector<NxNode*>& nodes : selected)
        indexes.append(m_tree->model()->indexOfPath(nodes));
    if (indexes.size() == 1)
        m_tree->select(indexes.front());
    else
        m_tree->selection().selectIndexes(indexes);
    m_view->setFocus();
}
