#include "orvane/app/window/SceneDrops.h"

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/structure/NodeActions.h"
#include "orvane/app/structure/NodeClipboard.h"
#include "orvane/app/structure/NodeMimeData.h"
#include "orvane/app/structure/TreeDrops.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"

#include <QDropEvent>
#include <QMimeData>

#include <span>

SceneDrops::SceneDrops(
    Session& session, FileFlow& files, SceneTreePanel* tree, SceneView* view, NodeActions& nodes, MessageBar& messages)
    : QObject(tree)
    , m_view(view)
    , m_nodes(nodes)
    , m_files(new FileDrops(session, files, nodes.editor()))
{
    new TreeDrops(tree, nodes.editor(), nodes.clipboard(), *m_files);
    view->setAcceptDrops(true);
    view->installEventFilter(this);
    connect(m_files, &FileDrops::failed, this,
        [&messages](const QString& text) { messages.showMessage(MessageBar::Severity::Warning, text); });
    // The view learns of the nodes a moment later.
    connect(m_files, &FileDrops::added, view, &SceneView::frameSelection, Qt::QueuedConnection);
    connect(&files, &FileFlow::added, this, [this, tree](NxNode* node) {
        tree->select(tree->model()->indexOfPath(std::span(&node, 1)));
        QMetaObject::invokeMethod(m_view, &SceneView::frameSelection, Qt::QueuedConnection);
    });
    connect(&nodes.clipboard(), &NodeClipboard::filesPasted, this, [this](const QMimeData& data) {
        m_files->take(data, {std::nullopt, m_nodes.editor().spotForAdding()});
    });
}

SceneDrops::~SceneDrops() = default;

bool SceneDrops::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::DragLeave)
        m_said.clear();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    handle(*static_cast<QDropEvent*>(event));
    return true;
}

void SceneDrops::handle(QDropEvent& event)
{
    const QMimeData& data = *event.mimeData();
    const FileDrops::Place place = placeAt(event.position());
    QString said;
    bool takes = orvane::hasFiles(data);
    if (takes) {
        said = m_files->refusal(data, place);
        takes = said.isEmpty();
        if (takes)
            said = m_files->promise(data, place);
    } else {
        said = tr("Drop nodes in the scene tree, which shows where they come.");
    }
    if (takes && event.type() == QEvent::Drop)
        m_files->take(data, place);
    else if (said != m_said)
        Q_EMIT m_nodes.editor().said(said);
    m_said = event.type() == QEvent::Drop ? QString() : said;
    // What isn't taken when it enters goes to the window, which would open it. The moves are refused.
    event.setDropAction(takes ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(takes || event.type() == QEvent::DragEnter);
}

FileDrops::Place SceneDrops::placeAt(const QPointF& position) const
{
    NxGroup* const scene = m_nodes.editor().scene();
    const std::optional<NxRayHit> hit = m_view->hitAt(position);
    if (scene == nullptr || !hit || hit->path.empty())
        return {};
    meridane::NodeRows rows{{scene}, {}, {}};
    for (NxNode* const node : hit->path) {
        const int row = rows.group().findChild(node);
        if (row < 0)
            return {};
        if (node == hit->path.back()) {
            rows.rows.push_back(row);
            break;
        }
        rows.places.push_back(row);
        rows.path.push_back(static_cast<NxGroup*>(node));
    }
    return {std::move(rows), std::nullopt};
}
