#include "orvane/app/view/marks/MarkedRows.h"

#include "orvane/app/lists/ListPanel.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QEvent>

#include <utility>

namespace {

/// As many are marked at once, in less than a millisecond.
constexpr int marksAtOnce = 20'000;

} // namespace

MarkedRows::MarkedRows(SceneView* view, SceneTreePanel* tree)
    : QObject(view)
    , m_view(view)
    , m_tree(tree)
    , m_positions([](void* data, NxSensor* /*sensor*/) { static_cast<MarkedRows*>(data)->outdate(); }, this)
    , m_indices([](void* data, NxSensor* /*sensor*/) { static_cast<MarkedRows*>(data)->outdate(); }, this)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MarkedRows::update);
    connect(tree, &SceneTreePanel::selectionChanged, this, &MarkedRows::outdate);
    connect(view, &SceneView::picked, this, &MarkedRows::showVertex);
}

MarkedRows::~MarkedRows() = default;

void MarkedRows::follow(ListPanel* panel)
{
    m_panel = panel;
    panel->installEventFilter(this);
    connect(panel, &QObject::destroyed, this, [this] {
        m_panel = nullptr;
        watchMesh();
        outdate();
    });
    const ListModel& model = *panel->model();
    connect(&model, &ListModel::listAboutToBeLeft, this, [this] { m_job.reset(); });
    connect(&model, &ListModel::listChanged, this, &MarkedRows::outdate);
    connect(&model, &QAbstractItemModel::modelReset, this, &MarkedRows::outdate);
    connect(panel->view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MarkedRows::outdate);
    outdate();
}

bool MarkedRows::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        outdate();
    return QObject::eventFilter(watched, event);
}

NxMesh* MarkedRows::mesh() const
{
    NxMField* const list = m_panel != nullptr && m_panel->isVisible() ? m_panel->list() : nullptr;
    return list != nullptr ? dynamic_cast<NxMesh*>(list->getContainer()) : nullptr;
}

std::optional<MarkedPointsJob::Rows> MarkedRows::rows() const
{
    const NxMesh* const shown = mesh();
    if (shown == nullptr)
        return {};
    const NxMField* const list = m_panel->list();
    if (list == &shown->indices)
        return MarkedPointsJob::Rows::OfIndices;
    const bool isOfVertices = list == &shown->positions || list == &shown->normals || list == &shown->textureCoordinates
        || (list == &shown->colors && list->getNum() != 1);
    return isOfVertices ? std::optional(MarkedPointsJob::Rows::OfVertices) : std::nullopt;
}

// The timer collects the changes of one turn. A job that is under way goes on, so that marks are seen to move however
// fast the changes follow each other.
void MarkedRows::outdate()
{
    m_isFresh = false;
    if (m_job == nullptr)
        m_timer.start(0);
}

void MarkedRows::watchMesh()
{
    NxMesh* const shown = mesh();
    NxField* const positions = shown != nullptr ? &shown->positions : nullptr;
    NxField* const indices = shown != nullptr ? &shown->indices : nullptr;
    if (m_positions.getAttachedField() != positions)
        m_positions.attach(positions);
    if (m_indices.getAttachedField() != indices)
        m_indices.attach(indices);
}

// The path stays while other nodes are selected.
void MarkedRows::followPath()
{
    const NxMesh* const shown = mesh();
    const std::vector<NxNode*> selected = m_tree->model()->path(m_tree->selected());
    if (!selected.empty() && selected.back() == shown)
        m_path.assign(selected.begin(), selected.end());
    else if (!m_path.empty() && m_path.back().get() != shown)
        m_path.clear();
}

void MarkedRows::update()
{
    watchMesh();
    followPath();
    m_isFresh = true;
    const std::optional<MarkedPointsJob::Rows> kind = rows();
    if (!kind || m_path.empty() || !m_panel->view()->selectionModel()->hasSelection()) {
        show({});
        return;
    }
    const RowRuns places = m_panel->view()->selectedPlaces();
    m_job = std::make_unique<MarkedPointsJob>(mesh(), *kind, places, m_panel->model()->map());
    connect(m_job.get(), &FileJob::finished, this, [this] {
        MarkedPointsJob* const job = m_job.release();
        job->deleteLater();
        show(job->takePoints());
        if (!m_isFresh)
            m_timer.start(0);
    });
    if (orvane::rowCount(places) <= marksAtOnce)
        m_job->runAll();
    else
        m_job->start();
}

void MarkedRows::show(std::vector<VbVec3f> points)
{
    if (points.empty() && !m_hasMarks)
        return;
    m_hasMarks = !points.empty();
    std::vector<NxNode*> path;
    for (const NxRef<NxNode>& node : m_path)
        path.push_back(node.get());
    m_view->drawing().setMarkedPoints(path, std::move(points));
}

void MarkedRows::showVertex(const NxRayHit& hit)
{
    const std::optional<MarkedPointsJob::Rows> kind = rows();
    if (!kind || hit.path.empty() || hit.path.back() != mesh())
        return;
    const bool byIndex = *kind == MarkedPointsJob::Rows::OfIndices;
    m_panel->view()->selectListRows({{byIndex ? hit.corner : hit.vertex, 1}});
}
