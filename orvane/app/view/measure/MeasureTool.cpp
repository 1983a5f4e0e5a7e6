#include "orvane/app/view/measure/MeasureTool.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/ViewInput.h"
#include "orvane/app/view/display/OverlayText.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/PictureProjection.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

/// How close to a vertex a click takes it, in points of the screen.
constexpr double vertexReach = 8;
constexpr std::size_t mostPoints = 3;

/// Six digits, which is what floats hold.
QString measure(double value)
{
    constexpr int digits = 6;
    return QString::number(value, 'g', digits);
}

QString triple(const VbVec3d& vector)
{
    return QStringLiteral("%1, %2, %3").arg(measure(vector[0]), measure(vector[1]), measure(vector[2]));
}

/// Where a vertex of a mesh is in the scene.
std::optional<VbVec3d> scenePoint(const NxGroup& scene, const NxRayHit& hit)
{
    const auto* const mesh = dynamic_cast<const NxMesh*>(hit.path.back());
    if (mesh == nullptr || hit.vertex >= mesh->positions.getNum())
        return {};
    meridane::Matrix4d worldTransform = meridane::localTransformOf(scene);
    for (const NxNode* const node : hit.path)
        worldTransform = meridane::multiply(meridane::localTransformOf(*node), worldTransform);
    return meridane::transformPoint(VbVec3d(mesh->positions[hit.vertex]), worldTransform);
}

/// In degrees; nothing if two of the points are the same.
std::optional<double> angleAt(const VbVec3d& middle, const VbVec3d& first, const VbVec3d& second)
{
    const VbVec3d left = meridane::subtract(first, middle);
    const VbVec3d right = meridane::subtract(second, middle);
    const double lengths = meridane::length(left) * meridane::length(right);
    if (!(lengths > 0))
        return {};
    return std::acos(std::clamp(meridane::dot(left, right) / lengths, -1.0, 1.0)) * 180 / std::numbers::pi;
}

} // namespace

MeasureTool::MeasureTool(SceneView* view, Session& session)
    : QObject(view)
    , m_view(view)
    , m_action(new QAction(this))
{
    m_action->setObjectName(QStringLiteral("view.measure"));
    m_action->setCheckable(true);
    m_action->setShortcut(Qt::Key_M);
    m_action->setShortcutContext(Qt::WidgetShortcut);
    orvane::followLanguage(this, [this] {
        m_action->setText(tr("&Measure"));
        m_action->setToolTip(tr("Measures distances and angles between points that are clicked, and the selection"));
        m_action->setStatusTip(m_action->toolTip());
    });
    view->addAction(m_action);
    view->input().addTool(this);
    connect(m_action, &QAction::toggled, this, [this](bool isOn) {
        m_points.clear();
        if (isOn)
            m_view->setCursor(Qt::CrossCursor);
        else
            m_view->unsetCursor();
        m_view->update();
    });
    connect(&session.document(), &SceneDocument::sceneAboutToChange, this, [this] { m_action->setChecked(false); });
}

MeasureTool::~MeasureTool() = default;

std::optional<VbVec3d> MeasureTool::pointAt(const QPointF& position) const
{
    const std::optional<NxRayHit> hit = m_view->hitAt(position);
    if (!hit || m_view->scene() == nullptr)
        return {};
    if (const std::optional<VbVec3d> vertex = scenePoint(*m_view->scene(), *hit)) {
        const meridane::PictureProjection projection(m_view->viewpoint(), m_view->width(), m_view->height());
        const auto place = projection.placeOf(*vertex);
        if (place && QLineF(position, QPointF((*place)[0], (*place)[1])).length() <= vertexReach)
            return vertex;
    }
    return hit->point;
}

bool MeasureTool::click(const QPointF& position)
{
    if (!m_action->isChecked())
        return false;
    if (const std::optional<VbVec3d> point = pointAt(position)) {
        if (m_points.size() == mostPoints)
            m_points.clear();
        m_points.push_back(*point);
    }
    m_view->update();
    return true;
}

bool MeasureTool::mouseMove(const QMouseEvent& /*event*/)
{
    if (!m_action->isChecked())
        return false;
    m_view->setCursor(Qt::CrossCursor);
    return true;
}

bool MeasureTool::keyPress(const QKeyEvent& event)
{
    if (!m_action->isChecked() || event.key() != Qt::Key_Escape)
        return false;
    m_action->setChecked(false);
    return true;
}

QStringList MeasureTool::selectionLines() const
{
    const NxBounds bounds = m_view->selectionBounds();
    if (bounds.isEmpty())
        return {};
    const VbVec3d least(bounds.min);
    const VbVec3d greatest(bounds.max);
    return {tr("Selection: %1").arg(triple(meridane::subtract(greatest, least))),
        tr("from %1 to %2").arg(triple(least), triple(greatest))};
}

QStringList MeasureTool::lines() const
{
    QStringList lines;
    if (m_points.empty())
        lines.append(tr("Click on two points to measure their distance, on a third one for an angle. Escape ends it."));
    if (m_points.size() == 1)
        lines.append(tr("From %1").arg(triple(m_points[0])));
    for (std::size_t i = 1; i < m_points.size(); ++i) {
        const VbVec3d way = meridane::subtract(m_points[i], m_points[i - 1]);
        lines.append(tr("Distance: %1 (%2)").arg(measure(meridane::length(way)), triple(way)));
    }
    if (m_points.size() == mostPoints) {
        if (const std::optional<double> angle = angleAt(m_points[1], m_points[0], m_points[2]))
            lines.append(tr("Angle: %1°").arg(measure(*angle)));
    }
    return lines + selectionLines();
}

void MeasureTool::paint(QPainter& painter) const
{
    if (!m_action->isChecked() || m_view->scene() == nullptr)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const meridane::PictureProjection projection(m_view->viewpoint(), m_view->width(), m_view->height());
    QPolygonF places;
    for (const VbVec3d& point : m_points) {
        if (const auto place = projection.placeOf(point))
            places.append(QPointF((*place)[0], (*place)[1]));
    }
    // Two colours, so that they are seen on any picture.
    constexpr double radius = 4;
    for (const auto& [color, width] : {std::pair(QColor(Qt::black), 4.0), std::pair(QColor(Qt::white), 2.0)}) {
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(places);
        painter.setBrush(Qt::black);
        for (const QPointF& place : places)
            painter.drawEllipse(place, radius, radius);
    }
    const QStringList texts = lines();
    const int margin = 2 * orvane::look::unit(painter.fontMetrics());
    const int width = orvane::plateSize(painter.fontMetrics(), texts).width();
    orvane::paintLines(painter, QPoint(std::max(margin, m_view->width() - width - margin), margin), texts);
    painter.restore();
}
