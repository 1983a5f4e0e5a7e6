#include "orvane/app/window/ProblemsDock.h"

#include "orvane/app/base/UserLocale.h"
#include "orvane/app/docks/DockPlace.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/problems/LiveCheck.h"
#include "orvane/app/problems/ProblemPanel.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/extender/OrvServices.h"

#include <QAction>
#include <QMainWindow>

#include <vector>

ProblemsDock::ProblemsDock(
    Session& session, ImageFolderQuestion& folders, JobBar& jobBar, SceneTreePanel* tree, QMainWindow* window)
    : QDockWidget(window)
    , m_session(session)
    , m_jobBar(jobBar)
    , m_tree(tree)
    , m_window(window)
    , m_check(new LiveCheck(session, folders))
{
    orvane::followLanguage(this, [this] { updateTitle(); });
    m_check->setParent(this);
    setObjectName(QStringLiteral("problemsDock"));
    toggleViewAction()->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M));
    hide();
}

void ProblemsDock::setVisible(bool visible)
{
    if (visible) {
        fill();
        if (!isFloating() && m_window->dockWidgetArea(this) == Qt::NoDockWidgetArea)
            orvane::placeAtBottom(m_window, this);
    }
    m_check->setOn(visible);
    QDockWidget::setVisible(visible);
    // Behind the tab of another dock it would seem that nothing happened.
    if (visible && m_window->isVisible())
        raise();
}

void ProblemsDock::fill()
{
    if (m_panel != nullptr)
        return;
    m_panel = new ProblemPanel(*m_check, m_session.services(), m_jobBar, this);
    setWidget(m_panel);
    connect(m_panel, &ProblemPanel::chosen, this, &ProblemsDock::select);
    connect(m_panel, &ProblemPanel::countsChanged, this, &ProblemsDock::updateTitle);
}

void ProblemsDock::select(const NxSceneProblem& problem)
{
    const NxSceneCheck* const check = m_check->check();
    if (check == nullptr || !m_session.document().isOpen())
        return;
    // The path leads to the right one of several places.
    std::vector<NxNode*> nodes;
    NxNode* node = m_session.document().scene();
    for (const int place : check->placesOf(problem)) {
        node = static_cast<NxGroup*>(node)->getChild(place);
        nodes.push_back(node);
    }
    const QModelIndex index = nodes.empty() ? QModelIndex() : m_tree->model()->indexOfPath(nodes);
    if (!index.isValid())
        return; // the node was deleted
    m_tree->select(index);
    m_session.services().selectField(problem.field);
    if (problem.field != nullptr && problem.row >= 0)
        Q_EMIT rowChosen(problem.field, problem.row);
}

void ProblemsDock::updateTitle()
{
    const NxSceneCheck* const check = m_check->check();
    const std::size_t errors = check == nullptr ? 0 : check->count(NxSeverity::Error);
    const std::size_t warnings = check == nullptr ? 0 : check->count(NxSeverity::Warning);
    const QString name = tr("Problems");
    const QString counts = errors > 0 && warnings > 0
        ? tr("%1 errors, %2 warnings").arg(orvane::countText(errors), orvane::countText(warnings))
        : errors > 0   ? tr("%1 errors").arg(orvane::countText(errors))
        : warnings > 0 ? tr("%1 warnings").arg(orvane::countText(warnings))
                       : QString();
    const QString title = counts.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, counts);
    if (title == windowTitle())
        return;
    setWindowTitle(title);
    // The menu has the name alone.
    toggleViewAction()->setText(name);
}
