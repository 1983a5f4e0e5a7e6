#include "orvane/app/window/ComparisonDock.h"

#include "orvane/app/compare/DifferenceModel.h"
#include "orvane/app/compare/DifferencePanel.h"
#include "orvane/app/compare/SceneComparer.h"
#include "orvane/app/docks/DockPlace.h"
#include "orvane/app/inspect/SelectionLink.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QMainWindow>

#include <utility>

ComparisonDock::ComparisonDock(Session& session, MessageBar& messages, JobBar& jobBar, SceneTreePanel* tree,
    SelectionLink& link, QMainWindow* window)
    : QDockWidget(window)
    , m_session(session)
    , m_tree(tree)
    , m_link(link)
    , m_window(window)
    , m_panel(new DifferencePanel(jobBar, this))
    , m_comparer(new SceneComparer(session, messages, jobBar, m_panel, this))
{
    orvane::followLanguage(this, [this] { setWindowTitle(tr("Comparison")); });
    setObjectName(QStringLiteral("comparisonDock"));
    setWidget(m_panel);
    connect(m_comparer, &SceneComparer::started, this, &ComparisonDock::reveal);
    connect(m_panel, &DifferencePanel::chosen, this, &ComparisonDock::select);
}

void ComparisonDock::compare(const NxRef<NxGroup>& other, const QString& fileName)
{
    m_comparer->compare(other, fileName);
}

void ComparisonDock::reveal()
{
    if (!std::exchange(m_placed, true) && !m_window->restoreDockWidget(this))
        orvane::placeAtBottom(m_window, this);
    show();
    raise();
}

void ComparisonDock::select(const NxSceneDifference& difference)
{
    const NxSceneDifferences& differences = m_panel->model()->differences();
    // A copy, since a slot of the selection may close the scene.
    const NxComparedNode compared = differences.node(difference);
    NxField* const field = differences.field(difference, NxSceneDifferences::Side::Left);
    NxNode* const node = compared.left ? compared.left.get() : compared.group.get();
    if (node == nullptr || !m_session.document().isOpen())
        return;
    // The path leads to the right one of several places, unless the scene has changed since.
    const NxScenePath::Target target = NxScenePath::find(m_session.document().scene(), compared.leftPath);
    const QModelIndex index
        = target.node() == node ? m_tree->model()->indexOfPath(target.nodes) : m_tree->model()->findNode(node);
    if (!index.isValid())
        return; // the node was deleted
    m_link.browse(index, field);
}
