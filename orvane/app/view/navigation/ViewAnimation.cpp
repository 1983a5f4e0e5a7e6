#include "orvane/app/view/navigation/ViewAnimation.h"

#include "orvane/app/view/SceneView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::milliseconds animationFrame(16);

/// Slow at both ends.
double eased(double part)
{
    return part * part * (3 - 2 * part);
}

bool endsAnimation(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::NativeGesture:
        return true;
    case QEvent::MouseMove: // a drag, rather than a pointer that passes by
        return static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
    default:
        return false;
    }
}

} // namespace

ViewAnimation::ViewAnimation(SceneView* view, Clock clock)
    : QObject(view)
    , m_view(view)
    , m_clock(std::move(clock))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(animationFrame);
    connect(&m_timer, &QTimer::timeout, this, &ViewAnimation::step);
    connect(view, &SceneView::jumped, this, &ViewAnimation::start);
    connect(view, &SceneView::moved, this, &ViewAnimation::finish);
    connect(view, &SceneView::sceneChanged, this, &ViewAnimation::stop);
    view->installEventFilter(this);
}

bool ViewAnimation::isWanted()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen")
        && QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

void ViewAnimation::setOn(bool isOn)
{
    finish();
    m_isOn = isOn;
}

bool ViewAnimation::eventFilter(QObject* /*object*/, QEvent* event)
{
    if (isRunning() && endsAnimation(*event))
        finish();
    return false;
}

void ViewAnimation::start(const NxViewpoint& before)
{
    // A view that isn't seen has no way to go.
    if (!m_isOn || !m_view->isVisible() || before == m_view->viewpoint())
        return;
    m_path.emplace(before, m_view->viewpoint());
    m_started = m_clock();
    m_shown = m_path->at(0);
    m_view->showStep(m_shown);
    m_timer.start();
}

void ViewAnimation::step()
{
    if (!isRunning())
        return;
    if (!(m_view->viewpoint() == m_shown)) { // something else has moved the view
        stop();
        return;
    }
    const auto share = std::chrono::duration<double>(m_clock() - m_started) / std::chrono::duration<double>(duration);
    if (share >= 1) {
        finish();
        return;
    }
    m_shown = m_path->at(eased(std::max(share, 0.0)));
    m_view->showStep(m_shown);
}

void ViewAnimation::finish()
{
    if (!isRunning())
        return;
    const NxViewpoint end = m_path->end();
    const bool isUndisturbed = m_view->viewpoint() == m_shown;
    stop();
    if (isUndisturbed)
        m_view->showStep(end);
}

void ViewAnimation::stop()
{
    m_timer.stop();
    m_path.reset();
}
