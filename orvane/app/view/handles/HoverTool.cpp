#include "orvane/app/view/handles/HoverTool.h"

#include "orvane/app/view/SceneView.h"

#include <QElapsedTimer>
#include <QMouseEvent>

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds rest(60);

} // namespace

HoverTool::HoverTool(SceneView* view)
    : QObject(view)
    , m_view(view)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(rest);
    connect(&m_timer, &QTimer::timeout, this, &HoverTool::look);
    connect(view, &SceneView::sceneChanged, this, [this] {
        m_timer.stop();
        m_path.clear();
        m_isTooSlow = false;
    });
    view->input().addTool(this);
}

bool HoverTool::mousePress(const QMouseEvent& /*event*/)
{
    m_timer.stop();
    return false;
}

bool HoverTool::mouseMove(const QMouseEvent& event)
{
    m_place = event.position();
    if (!m_isTooSlow)
        m_timer.start(); // again, so that it looks when the pointer rests
    return true;
}

void HoverTool::leave()
{
    m_timer.stop();
    show({});
}

void HoverTool::look()
{
    if (m_view->scene() == nullptr || m_view->drawing().pictureMilliseconds() > m_most) {
        show({});
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const std::optional<NxRayHit> hit = m_view->input().nextHit(m_place);
    m_isTooSlow = timer.elapsed() > m_most;
    show(hit && !m_isTooSlow ? hit->path : std::vector<NxNode*>());
}

void HoverTool::show(const std::vector<NxNode*>& path)
{
    if (std::equal(path.begin(), path.end(), m_path.begin(), m_path.end(),
            [](const NxNode* left, const NxRef<NxNode>& right) { return left == right.get(); }))
        return;
    m_path.assign(path.begin(), path.end());
    m_view->setHoveredPath(path);
}
