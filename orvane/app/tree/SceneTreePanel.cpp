#include "orvane/app/tree/SceneTreePanel.h"

#include "orvane/app/tree/NodeDelegate.h"
#include "orvane/app/tree/NodeMarks.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreeView.h"

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
    , m_view(new SceneTreeView(this))
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_view);
    m_view->setObjectName(QStringLiteral("sceneTree"));
    m_view->setAccessibleName(tr("Scene"));
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
    m_view->header()->setSectionResizeMode(SceneTreeModel::NameColumn, QHeaderView::Interactive);
    m_view->header()->setStretchLastSection(true);
    // Scenes are deep and names of classes short, so names of nodes get most of the width.
    constexpr int indentation = 14;
    m_view->setIndentation(indentation);
    m_view->header()->resizeSection(SceneTreeModel::NameColumn, fontMetrics().averageCharWidth() * 32);
    // Not the current index: a view that gets the focus makes its first row current, and that must select nothing.
    connect(m_selection, &NodeSelection::changed, this, [this] { Q_EMIT selectionChanged(selectedNode()); });
    setFocusProxy(m_view);
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
    if (index == selected())
        return;
    if (index.isValid()) {
        m_view->setCurrentIndex(index);
        m_view->scrollTo(index);
    } else {
        m_view->selectionModel()->clear();
    }
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
    for (const QPersistentModelIndex& index : state.unfolded())
        wanted.insert(index);
    m_view->layoutLater();
    for (const QModelIndex& index : m_model->fetchedIndexes()) {
        if (const bool isUnfolded = wanted.contains(index); isUnfolded != m_view->isExpanded(index))
            m_view->setExpanded(index, isUnfolded);
    }
}

void SceneTreePanel::unfoldTo(std::span<NxNode* const> path)
{
    if (path.size() < 2)
        return;
    m_view->layoutLater();
    for (QModelIndex index = m_model->indexOfPath(path.first(path.size() - 1)); index.isValid(); index = index.parent())
        m_view->expand(index);
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
    m_model->setScene(scene);
    if (m_model->rowCount() > mostUnfolded)
        return;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex index = m_model->index(row, SceneTreeModel::NameColumn);
        if (m_model->node(index)->getChildren().size() <= mostUnfolded)
            m_view->expand(index);
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
