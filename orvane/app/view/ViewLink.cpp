#include "orvane/app/view/ViewLink.h"

#include "orvane/app/images/EditorImages.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/ViewSelection.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStatusBar>

#include <algorithm>
#include <cmath>

namespace {

/// Five digits, or as many as it takes for thousandths.
QString coordinate(double value)
{
    constexpr int least = 5;
    constexpr int most = 12;
    const double size = std::clamp(std::log10(std::abs(value)), 0.0, double{most});
    return QString::number(value, 'g', std::clamp(static_cast<int>(size) + 4, least, most));
}

/// A point, with separators between its coordinates.
QString coordinates(const VbVec3d& point, const QString& separator)
{
    return QStringList{coordinate(point[0]), coordinate(point[1]), coordinate(point[2])}.join(separator);
}

} // namespace

QString ViewLink::pickedText(const NxRayHit& hit)
{
    QString point = tr("at %1").arg(coordinates(hit.point, QStringLiteral(", ")));
    const auto* const mesh = hit.path.empty() ? nullptr : dynamic_cast<const NxMesh*>(hit.path.back());
    if (mesh == nullptr || hit.vertex >= mesh->positions.getNum())
        return point;
    return tr("%1 · vertex %2 (%3)")
        .arg(point, QString::number(hit.vertex), coordinates(mesh->positions[hit.vertex], QStringLiteral(" ")));
}

ViewLink::ViewLink(Session& session, SceneView* view, SceneTreePanel* tree, QStatusBar* bar)
    : QObject(view)
    , m_session(session)
    , m_view(view)
    , m_tree(tree)
    , m_point(new QLabel(bar))
    , m_cameras(session.settings())
{
    m_point->setObjectName(QStringLiteral("pickedPoint"));
    orvane::followLanguage(this, [this] {
        m_point->setToolTip(
            tr("The point of the scene that was clicked, and the nearest vertex of the mesh with its position"));
    });
    m_point->hide();
    bar->addPermanentWidget(m_point);
    const SceneDocument& document = session.document();
    connect(&document, &SceneDocument::sceneAboutToChange, this, &ViewLink::leaveScene);
    connect(&document, &SceneDocument::sceneChanged, this, &ViewLink::showScene);
    connect(&document, &SceneDocument::fileNameChanged, this,
        [this] { m_view->drawing().setFolder(m_session.document().pathFolder()); });
    connect(&session.services(), &OrvServices::documentEdited, view, &SceneView::forgetClick);
    connect(tree, &SceneTreePanel::selectionChanged, this, &ViewLink::showSelection);
    new ViewSelection(view, tree);
    new EditorImages(view->drawing().textures(), this);
    connect(view, &SceneView::picked, this, &ViewLink::choose);
    connect(view, &SceneView::pickedNothing, this, &ViewLink::chooseNothing);
}

void ViewLink::leaveScene()
{
    if (m_view->hasMoved())
        m_cameras.store(m_session.document().fileName(), m_view->viewpoint());
    m_view->setScene(nullptr, QString());
}

void ViewLink::showScene()
{
    const SceneDocument& document = m_session.document();
    m_view->setScene(document.scene(), document.pathFolder(), m_cameras.find(document.fileName()));
}

void ViewLink::showSelection()
{
    m_point->hide();
    if (!m_isChoosing)
        m_view->forgetClick();
    m_view->setSelectedPath(m_tree->model()->path(m_tree->selected()));
}

void ViewLink::choose(const NxRayHit& hit)
{
    const QScopedValueRollback guard(m_isChoosing, true);
    const QModelIndex index = m_tree->model()->indexOfPath(hit.path);
    if (QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier))
        m_tree->selection().toggle(index);
    else
        m_tree->select(index);
    m_point->setText(pickedText(hit));
    m_point->show();
}

void ViewLink::chooseNothing()
{
    const QScopedValueRollback guard(m_isChoosing, true);
    m_tree->select(QModelIndex());
    m_point->hide();
}
