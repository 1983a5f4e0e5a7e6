#include "orvane/app/tree/TreeActions.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/SceneTreeView.h"
#include "orvane/app/tree/TreeUnfolding.h"

#include "meridane/scene/nodes/NodeTraversal.h"

#include <QAction>
#include <QMenu>
#include <QStatusBar>
#include <QTreeView>

#include <chrono>
#include <limits>

namespace {

constexpr int mostLevels = 9;

} // namespace

TreeActions::TreeActions(SceneTreePanel* tree, QStatusBar* bar)
    : QObject(tree)
    , m_tree(tree)
    , m_foldMenu(new QMenu(tree))
    , m_selectMenu(new QMenu(tree))
{
    orvane::followLanguage(this, [this] {
        m_foldMenu->setTitle(tr("&Unfold and Fold"));
        m_selectMenu->setTitle(tr("Select &Nodes"));
    });
    m_foldMenu->setObjectName(QStringLiteral("foldMenu"));
    m_selectMenu->setObjectName(QStringLiteral("selectMenu"));
    addFolding();
    addSelecting();
    connect(this, &TreeActions::noted, bar, [bar](const QString& message) {
        constexpr std::chrono::seconds shown(10);
        bar->showMessage(message, static_cast<int>(std::chrono::milliseconds(shown).count()));
    });
    if (const auto* const view = qobject_cast<SceneTreeView*>(tree->view()))
        connect(view, &SceneTreeView::unfoldRequested, this, &TreeActions::unfoldSelected);
    connect(tree, &SceneTreePanel::selectionChanged, this, &TreeActions::update);
    connect(tree->model(), &QAbstractItemModel::modelReset, this, &TreeActions::update);
    orvane::followLanguage(this, [this] { update(); });
}

QAction* TreeActions::add(QMenu* menu, const char* name, const char* text, const char* tip, const QKeySequence& key,
    const std::function<void()>& run)
{
    QAction* const action = menu->addAction(QString());
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tree->addAction(action);
    connect(action, &QAction::triggered, this, run);
    return action;
}

QList<QAction*> TreeActions::menuActions() const
{
    return {m_foldMenu->menuAction(), m_selectMenu->menuAction()};
}

void TreeActions::addFolding()
{
    m_ofSelection.append(add(m_foldMenu, "tree.unfoldSelected", QT_TR_NOOP("&Unfold All Below"),
        QT_TR_NOOP("Unfolds the selected nodes and everything below them"), Qt::CTRL | Qt::Key_Plus,
        [this] { unfoldSelected(); }));
    m_ofSelection.append(add(m_foldMenu, "tree.foldSelected", QT_TR_NOOP("&Fold"),
        QT_TR_NOOP("Folds the selected nodes and everything below them"), Qt::CTRL | Qt::Key_Minus,
        [this] { foldSelected(); }));
    m_foldMenu->addSeparator();
    for (int level = 1; level <= mostLevels; ++level) {
        const QByteArray name = "tree.unfoldTo" + QByteArray::number(level);
        // Only the texts of the first level have no number.
        const char* const text = level == 1 ? QT_TR_NOOP("Fold to Level &1") : QT_TR_NOOP("Unfold to Level &%1");
        const char* const tip = level == 1 ? QT_TR_NOOP("Shows the top nodes alone in the tree")
                                           : QT_TR_NOOP("Shows %1 levels of the tree, and folds what is below");
        QAction* const action = add(m_foldMenu, name.constData(), text, tip,
            QKeyCombination(Qt::CTRL | Qt::SHIFT, static_cast<Qt::Key>(Qt::Key_0 + level)),
            [this, level] { unfoldTo(level); });
        if (level > 1) {
            orvane::followLanguage(action, [action, text, tip, level] {
                action->setText(tr(text).arg(level));
                action->setStatusTip(tr(tip).arg(level));
            });
        }
        m_ofScene.append(action);
    }
}

void TreeActions::addSelecting()
{
    m_ofSelection.append(add(m_selectMenu, "tree.selectChildren", QT_TR_NOOP("All &Children"),
        QT_TR_NOOP("Selects all children of the selected nodes in their place"), Qt::CTRL | Qt::SHIFT | Qt::Key_A,
        [this] { selectChildren(); }));
    m_ofSelection.append(add(m_selectMenu, "tree.selectSameClass", QT_TR_NOOP("All of the Same C&lass"),
        QT_TR_NOOP("Selects all nodes of the scene that have the class of the node selected last"), {},
        [this] { selectSameClass(); }));
    m_ofScene.append(add(m_selectMenu, "tree.invertSelection", QT_TR_NOOP("&Inverse"),
        QT_TR_NOOP("Selects the unfolded rows of the tree that aren't selected, and no others"),
        Qt::CTRL | Qt::ALT | Qt::Key_A, [this] { invert(); }));
}

void TreeActions::update()
{
    const bool isAny = m_tree->selected().isValid();
    for (QAction* const action : m_ofSelection) {
        action->setEnabled(isAny);
        action->setToolTip(isAny ? action->statusTip() : tr("No node is selected"));
    }
    const bool isOpen = m_tree->model()->scene() != nullptr;
    for (QAction* const action : m_ofScene) {
        action->setEnabled(isOpen);
        action->setToolTip(isOpen ? action->statusTip() : tr("No scene is open"));
    }
}

void TreeActions::noteCut(int levels)
{
    Q_EMIT noted(tr("The tree shows %1 more levels only: with the next one there would be more than %2 rows.")
                     .arg(levels)
                     .arg(TreeUnfolding::mostRows));
}

void TreeActions::unfoldSelected()
{
    const TreeUnfolding::Result result
        = TreeUnfolding(*m_tree).unfoldBelow(m_tree->selection().indexes(), std::numeric_limits<int>::max());
    if (result.isCut)
        noteCut(result.levels);
}

void TreeActions::foldSelected()
{
    const QModelIndexList rows = m_tree->selection().indexes();
    const QSet<QModelIndex> tops(rows.begin(), rows.end());
    std::vector<QPersistentModelIndex> kept;
    const FoldState state = m_tree->foldState();
    for (const QPersistentModelIndex& index : state.unfolded()) {
        QModelIndex step = index;
        while (step.isValid() && !tops.contains(step))
            step = step.parent();
        if (!step.isValid())
            kept.push_back(index);
    }
    m_tree->restoreFolds(FoldState(std::move(kept)));
}

void TreeActions::unfoldTo(int level)
{
    const TreeUnfolding::Result result = TreeUnfolding(*m_tree).unfoldTo(level);
    if (result.isCut)
        noteCut(result.levels);
    m_tree->view()->scrollTo(m_tree->selected());
}

void TreeActions::selectChildren()
{
    SceneTreeModel& model = *m_tree->model();
    QModelIndexList children;
    const QModelIndexList rows = m_tree->selection().indexes();
    m_tree->layoutLater();
    for (const QModelIndex& row : rows) {
        model.fetchMore(row);
        if (model.rowCount(row) > 0)
            m_tree->view()->expand(row);
        for (int child = 0; child < model.rowCount(row); ++child)
            children.append(model.index(child, SceneTreeModel::NameColumn, row));
    }
    if (children.isEmpty())
        Q_EMIT noted(tr("The selected nodes have no children."));
    else
        m_tree->selection().selectIndexes(children);
}

void TreeActions::selectSameClass()
{
    NxNode* const last = m_tree->selectedNode();
    const NxGroup* const scene = m_tree->model()->scene();
    if (last == nullptr || scene == nullptr)
        return;
    const QByteArray wanted(last->getClassName()); // which tells unknown classes apart too
    std::vector<NxNode*> nodes{last};
    meridane::NodeTraversal traversal(*scene);
    while (NxNode* const node = traversal.next()) {
        if (node != last && wanted == node->getClassName())
            nodes.push_back(node);
    }
    m_tree->selection().select(nodes);
}

void TreeActions::invert()
{
    const SceneTreeModel& model = *m_tree->model();
    const QModelIndexList rows = m_tree->selection().indexes();
    const QSet<QModelIndex> selected(rows.begin(), rows.end());
    QModelIndexList others;
    std::vector<QModelIndex> waiting{QModelIndex()};
    while (!waiting.empty()) {
        const QModelIndex parent = waiting.back();
        waiting.pop_back();
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, SceneTreeModel::NameColumn, parent);
            if (!selected.contains(index))
                others.append(index);
            if (m_tree->view()->isExpanded(index))
                waiting.push_back(index);
        }
    }
    m_tree->selection().selectIndexes(others);
}
