#include "orvane/app/view/HidingActions.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Symbols.h"
#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/nodes/NodeTraversal.h"

#include <QAction>
#include <QStatusBar>
#include <QTimerEvent>
#include <QToolButton>
#include <QTreeView>

#include <chrono>
#include <unordered_set>

namespace {

std::vector<NxNode*> selectedNodes(const SceneTreePanel& tree)
{
    std::vector<NxNode*> result;
    if (const auto nodes = tree.selection().nodes()) {
        for (const auto& node : *nodes)
            result.push_back(static_cast<NxNode*>(node.get()));
    }
    return result;
}

} // namespace

HidingActions::HidingActions(SceneView* view, SceneTreePanel* tree, QStatusBar* bar)
    : QObject(view)
    , m_tree(tree)
    , m_view(view)
    , m_hidden(tree->hidden())
    , m_isolate(add("node.isolate", QT_TR_NOOP("Isolat&e"), QT_TR_NOOP("Shows the selected nodes alone in the view"),
          Qt::CTRL | Qt::ALT | Qt::Key_H))
    , m_hide(add("node.hide", QT_TR_NOOP("Hide"),
          QT_TR_NOOP("Hides the selected nodes in the view; the scene stays as it is"), Qt::Key_H))
    , m_showAll(add("view.showAll", QT_TR_NOOP("Show All"),
          QT_TR_NOOP("Shows all nodes that were hidden or left out by isolating"), Qt::SHIFT | Qt::Key_H))
    , m_bar(bar)
    , m_status(new QToolButton(bar))
{
    connect(m_isolate, &QAction::triggered, this, &HidingActions::isolate);
    connect(m_hide, &QAction::triggered, this, &HidingActions::hide);
    connect(m_showAll, &QAction::triggered, &m_hidden, &HiddenNodes::showAll);
    m_status->setObjectName(QStringLiteral("hiddenStatus"));
    m_status->setAutoRaise(true);
    m_status->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_status->setIcon(orvane::look::symbol(QStringLiteral("hide")));
    orvane::followLanguage(this, [this] { m_status->setToolTip(tr("Shows all nodes again (Shift+H)")); });
    connect(m_status, &QToolButton::clicked, &m_hidden, &HiddenNodes::showAll);
    bar->addPermanentWidget(m_status);
    connect(&m_hidden, &HiddenNodes::changed, this, &HidingActions::update);
    connect(&m_hidden, &HiddenNodes::changed, this, &HidingActions::countPlaces);
    // A step may share a hidden node, or make it one's own.
    connect(tree->model(), &QAbstractItemModel::rowsInserted, this, &HidingActions::countPlaces);
    connect(tree->model(), &QAbstractItemModel::rowsRemoved, this, &HidingActions::countPlaces);
    connect(tree->model(), &QAbstractItemModel::rowsRemoved, this, [this] {
        if (!m_hidden.isolated().empty())
            m_removal.start(0, this);
    });
    connect(tree, &SceneTreePanel::selectionChanged, this, &HidingActions::update);
    orvane::followLanguage(this, [this] { update(); });
}

QAction* HidingActions::add(const char* name, const char* text, const char* tip, const QKeySequence& key)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_tree->addNodeAction(action);
    m_view->addAction(action);
    return action;
}

void HidingActions::hide()
{
    m_hidden.hide(selectedNodes(*m_tree));
}

void HidingActions::isolate()
{
    m_hidden.isolate(selectedNodes(*m_tree));
}

void HidingActions::update()
{
    const bool isAny = m_tree->selected().isValid();
    for (QAction* const action : {m_isolate, m_hide}) {
        action->setEnabled(isAny);
        action->setToolTip(isAny ? action->statusTip() : tr("No node is selected"));
    }
    m_showAll->setEnabled(!m_hidden.isEmpty());
    m_showAll->setToolTip(m_hidden.isEmpty() ? tr("Nothing is hidden") : m_showAll->statusTip());
    m_status->setVisible(!m_hidden.isEmpty());
}

/// Counts in slices in how many places the hidden nodes are.
void HidingActions::countPlaces()
{
    m_slices.stop();
    m_places.reset();
    showStatus(0);
    NxGroup* const scene = m_tree->model()->scene();
    if (scene == nullptr || m_hidden.hidden().empty())
        return;
    m_places = std::make_unique<PlaceCount>(*scene, m_hidden.hidden());
    m_slices.start(0, this);
}

void HidingActions::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_removal.timerId()) {
        endIsolation();
        return;
    }
    constexpr std::chrono::milliseconds sliceOfCount(4);
    if (event->timerId() != m_slices.timerId() || !m_places->advance(sliceOfCount))
        return;
    m_slices.stop();
    const std::size_t places = m_places->count();
    const bool isShared = places > m_places->nodesFound();
    m_places.reset();
    if (isShared)
        showStatus(places);
}

/// If all isolated nodes were deleted: the view would be empty.
void HidingActions::endIsolation()
{
    m_removal.stop();
    const std::unordered_set<const NxNode*> isolated(m_hidden.isolated().begin(), m_hidden.isolated().end());
    const NxGroup* const scene = m_tree->model()->scene();
    if (scene == nullptr || isolated.empty())
        return;
    meridane::NodeTraversal nodes(*scene);
    while (const NxNode* const node = nodes.next()) {
        if (isolated.contains(node))
            return;
    }
    m_hidden.isolate({});
    constexpr int messageTime = 10000;
    m_bar->showMessage(tr("No isolated node is left in the scene, so the others are shown again."), messageTime);
}

/// Without a number of places if that is 0.
void HidingActions::showStatus(std::size_t places)
{
    const auto hidden = static_cast<int>(m_hidden.hidden().size());
    const auto isolated = static_cast<int>(m_hidden.isolated().size());
    QStringList parts;
    if (isolated > 0)
        parts.append(isolated == 1 ? tr("1 node isolated") : tr("%1 nodes isolated").arg(isolated));
    if (hidden > 0 && places > 0)
        parts.append(tr("%1 hidden in %2 places").arg(hidden).arg(places));
    else if (hidden > 0)
        parts.append(hidden == 1 ? tr("1 hidden") : tr("%1 hidden").arg(hidden));
    m_status->setText(parts.join(QStringLiteral(", ")));
}
