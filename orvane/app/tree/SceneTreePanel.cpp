#include "orvane/app/tree/SceneTreePanel.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeDelegate.h"
#include "orvane/app/tree/NodeMarks.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreeView.h"
#include "orvane/app/tree/TreeTips.h"
#include "orvane/app/tree/selection/RowSelection.h"

#include <QAction>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// A scene with more top nodes than this is shown folded.
constexpr int mostUnfolded = 20;

} // namespace

SceneTreePanel::SceneTreePanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new SceneTreeModel(this))
    , m_hidden(new HiddenNodes(this))
    , m_view(new SceneTreeView(this))
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_view);
    m_view->setObjectName(QStringLiteral("sceneTree"));
    orvane::followLanguage(this, [this] { m_view->setAccessibleName(tr("Scene")); });
    m_view->setModel(m_model);
    m_view->setItemDelegate(new NodeDelegate(m_view));
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_selection = new NodeSelection(m_view, m_model);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setMouseTracking(true); // for the eye under the pointer
    constexpr int indentation = 14;
    m_view->setIndentation(indentation);
    setUpColumns();
    new TreeTips(m_view, m_model, *m_hidden);
    m_model->setHidden(m_hidden);
    connect(m_hidden, &HiddenNodes::changed, m_view->viewport(), qOverload<>(&QWidget::update));
    connect(m_view, &SceneTreeView::eyeClicked, this, &SceneTreePanel::clickEye);
    // Not the current index: a view that gets the focus makes its first row current, and that must select nothing.
    connect(m_selection, &NodeSelection::changed, this, [this] { Q_EMIT selectionChanged(selectedNode()); });
    setFocusProxy(m_view);
}

void SceneTreePanel::setUpColumns()
{
    QHeaderView* const header = m_view->header();
    const int eye = orvane::look::iconSize(fontMetrics()) + 2 * orvane::look::unit(fontMetrics());
    header->setStretchLastSection(false);
    header->setMinimumSectionSize(eye);
    header->setSectionResizeMode(SceneTreeModel::NameColumn, QHeaderView::Interactive);
    header->setSectionResizeMode(SceneTreeModel::ClassColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(SceneTreeModel::ShownColumn, QHeaderView::Fixed);
    // Scenes are deep and names of classes short, so names of nodes get most of the width.
    header->resizeSection(SceneTreeModel::NameColumn, fontMetrics().averageCharWidth() * 29);
    header->resizeSection(SceneTreeModel::ShownColumn, eye);
}

// For all selected nodes if it is the eye of one of them.
void SceneTreePanel::clickEye(const QModelIndex& index)
{
    const bool isShown = index.data(SceneTreeModel::ShownRole).toBool();
    QModelIndexList rows{index};
    if (m_view->rowSelection()->contains(index))
        rows = m_selection->indexes();
    std::vector<std::vector<NxNode*>> paths;
    paths.reserve(static_cast<std::size_t>(rows.size()));
    for (const QModelIndex& row : rows)
        paths.push_back(m_model->path(row));
    if (!isShown) {
        m_hidden->reveal(paths);
        return;
    }
    std::vector<NxNode*> nodes;
    nodes.reserve(paths.size());
    for (const std::vector<NxNode*>& path : paths)
        nodes.push_back(path.back());
    m_hidden->hide(nodes);
}

QModelIndex SceneTreePanel::selected() const
{
    return m_selection->lastIndex();
}

NxNode* SceneTreePanel::selectedNode() const
{
    return m_model->node(selected());
}

std::vector<int> SceneTreePanel::selectedRows() const
{
    std::vector<int> rows;
    for (QModelIndex step = selected(); step.isValid(); step = step.parent())
        rows.push_back(step.row());
    std::reverse(rows.begin(), rows.end());
    return rows;
}

void SceneTreePanel::select(const QModelIndex& index)
{
    if (index == selected() && m_selection->rowCount() <= 1)
        return;
    if (index.isValid()) {
        // Not by the view, which would look at the keys that are held.
        m_view->selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        m_view->scrollTo(index);
    } else {
        m_view->selectionModel()->clear();
    }
}

void SceneTreePanel::addTopWidget(QWidget* widget)
{
    m_layout->insertWidget(m_layout->indexOf(m_view), widget);
}

QTreeView* SceneTreePanel::view() const noexcept
{
    return m_view;
}

void SceneTreePanel::setMarks(const std::shared_ptr<const NodeMarks>& marks)
{
    m_model->setMarks(marks);
    m_view->viewport()->update();
}

FoldState SceneTreePanel::foldState() const
{
    std::vector<QPersistentModelIndex> unfolded;
    for (const QModelIndex& index : m_model->fetchedIndexes()) {
        if (m_view->isExpanded(index))
            unfolded.emplace_back(index);
    }
    return FoldState(std::move(unfolded));
}

void SceneTreePanel::restoreFolds(const FoldState& state)
{
    QSet<QModelIndex> wanted;
    for (const QPersistentModelIndex& index : state.unfolded()) {
        m_model->fetchMore(index);
        wanted.insert(index);
    }
    m_view->layoutLater();
    for (const QModelIndex& index : m_model->fetchedIndexes()) {
        if (const bool isUnfolded = wanted.contains(index); isUnfolded != m_view->isExpanded(index))
            m_view->setExpanded(index, isUnfolded);
    }
}

// The view puts off fetching rows, which the states of folds are about.
void SceneTreePanel::unfold(const QModelIndex& index)
{
    m_model->fetchMore(index);
    m_view->expand(index);
}

void SceneTreePanel::unfoldTo(std::span<NxNode* const> path)
{
    if (path.size() < 2)
        return;
    m_view->layoutLater();
    for (QModelIndex index = m_model->indexOfPath(path.first(path.size() - 1)); index.isValid(); index = index.parent())
        unfold(index);
}

void SceneTreePanel::layoutLater()
{
    m_view->layoutLater();
}

void SceneTreePanel::setHeaderWidget(QWidget* widget)
{
    delete m_header;
    m_header = widget;
    if (m_header != nullptr)
        m_layout->insertWidget(0, m_header);
}

void SceneTreePanel::setScene(NxGroup* scene)
{
    m_hidden->showAll();
    m_model->setScene(scene);
    if (m_model->rowCount() <= mostUnfolded)
        unfoldFirst();
    Q_EMIT sceneShown();
}

void SceneTreePanel::unfoldFirst()
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex index = m_model->index(row, SceneTreeModel::NameColumn);
        if (m_model->node(index)->getChildren().size() <= mostUnfolded)
            unfold(index);
    }
}

void SceneTreePanel::renameSelected()
{
    if (!selected().isValid())
        return;
    m_view->setFocus();
    m_view->edit(selected());
}

void SceneTreePanel::addNodeAction(QAction* action)
{
    m_view->addAction(action);
}
