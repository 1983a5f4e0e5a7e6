#include "orvane/app/view/navigation/FlyTool.h"

#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

using namespace meridane;

namespace {

constexpr std::chrono::milliseconds flightFrame(16);
/// After a picture that took longer the flight doesn't catch up: what is ahead would be passed unseen.
constexpr std::chrono::milliseconds longestFlightFrame(250);
/// From one end of the scene to the other.
constexpr double secondsThroughScene = 5;
constexpr double speedPerNotch = 1.25;
constexpr double slowest = 1e-4;
constexpr double fastest = 1e3;
/// A move of the mouse across the height of the view turns by so much.
constexpr double turnPerHeight = std::numbers::pi * 2 / 3;

constexpr std::array flightKeys{Qt::Key_W, Qt::Key_S, Qt::Key_A, Qt::Key_D, Qt::Key_Q, Qt::Key_E};

bool isFlightKey(int key)
{
    return std::find(flightKeys.begin(), flightKeys.end(), key) != flightKeys.end();
}

} // namespace

FlyTool::FlyTool(SceneView* view, Clock clock)
    : QObject(view)
    , m_view(view)
    , m_clock(std::move(clock))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(flightFrame);
    connect(&m_timer, &QTimer::timeout, this, &FlyTool::goOn);
    view->input().addTool(this);
    view->installEventFilter(this);
}

double FlyTool::speed() const
{
    return m_size / secondsThroughScene * m_factor;
}

bool FlyTool::mousePress(const QMouseEvent& event)
{
    if (m_isHeld)
        return true;
    if (event.button() != Qt::RightButton || m_view->scene() == nullptr)
        return false;
    m_isHeld = true;
    m_isFast = event.modifiers().testFlag(Qt::ShiftModifier);
    m_pressed = event.position();
    m_last = m_pressed;
    m_start = m_view->viewpoint();
    return true;
}

bool FlyTool::mouseMove(const QMouseEvent& event)
{
    if (!m_isHeld)
        return false;
    const QPointF way = event.position() - m_pressed;
    if (!m_isFlying && way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return true; // a click with an unsteady hand
    begin();
    look(event.position() - m_last);
    m_last = event.position();
    return true;
}

void FlyTool::mouseRelease(const QMouseEvent& event)
{
    const bool hasFlown = m_isFlying;
    cancel();
    if (!hasFlown)
        m_view->input().openMenu(event.position(), event.globalPosition().toPoint());
}

void FlyTool::cancel()
{
    if (m_isFlying)
        goOn();
    m_isHeld = false;
    end();
}

bool FlyTool::wantsKey(const QKeyEvent& event) const
{
    return m_isHeld && (isFlightKey(event.key()) || event.key() == Qt::Key_Escape);
}

bool FlyTool::keyPress(const QKeyEvent& event)
{
    if (!m_isHeld)
        return false;
    if (event.key() == Qt::Key_Escape) {
        begin(); // so that the release is no click
        m_keys.clear();
        m_timer.stop();
        m_view->navigate(m_start);
        return true;
    }
    if (!isFlightKey(event.key()))
        return false;
    if (event.isAutoRepeat())
        return true;
    begin();
    goOn();
    m_keys.insert(event.key());
    m_latest = m_clock();
    m_timer.start();
    return true;
}

bool FlyTool::eventFilter(QObject* /*object*/, QEvent* event)
{
    if (!m_isHeld)
        return false;
    if (event->type() == QEvent::Wheel) {
        constexpr double notch = 120;
        changeSpeed(static_cast<const QWheelEvent*>(event)->angleDelta().y() / notch);
        return true;
    }
    if (event->type() == QEvent::FocusOut) {
        goOn();
        m_keys.clear();
        m_timer.stop();
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isPress = event->type() == QEvent::KeyPress;
    goOn(); // with the speed until now
    m_isFast = key.key() == Qt::Key_Shift ? isPress : key.modifiers().testFlag(Qt::ShiftModifier);
    if (!isPress && !key.isAutoRepeat())
        releaseKey(key.key());
    return !isPress && isFlightKey(key.key());
}

void FlyTool::releaseKey(int key)
{
    m_keys.remove(key);
    if (m_keys.isEmpty())
        m_timer.stop();
}

void FlyTool::begin()
{
    if (std::exchange(m_isFlying, true))
        return;
    const NxBounds bounds = m_view->drawing().bounds();
    const double size = bounds.isEmpty() ? 0 : length(subtract(VbVec3d(bounds.max), VbVec3d(bounds.min)));
    m_size = size > 0 && std::isfinite(size) ? size : static_cast<double>(m_view->viewpoint().focalDistance);
    m_view->setCursor(Qt::CrossCursor);
    changeSpeed(0);
}

void FlyTool::end()
{
    m_keys.clear();
    m_timer.stop();
    if (!std::exchange(m_isFlying, false))
        return;
    m_view->unsetCursor();
    Q_EMIT said({});
}

void FlyTool::changeSpeed(double notches)
{
    begin();
    goOn(); // with the speed until now
    m_factor = std::clamp(m_factor * std::pow(speedPerNotch, notches), slowest, fastest);
    Q_EMIT said(
        tr("Flying at %1 units per second: W A S D, Q and E for down and up, Shift for faster. The wheel changes "
           "the speed.")
            .arg(QLocale().toString(speed(), 'g', 3)));
}

void FlyTool::look(const QPointF& way)
{
    const double perPixel = turnPerHeight / std::max(m_view->height(), 1);
    NxViewpoint viewpoint = m_view->viewpoint();
    // About itself an orbit turns the other way round.
    viewpoint.orbit(
        static_cast<float>(-way.x() * perPixel), static_cast<float>(way.y() * perPixel), viewpoint.position);
    m_view->navigate(viewpoint);
}

/// In the axes of the viewpoint: to the right, along the up axis of the scene, ahead.
VbVec3d FlyTool::direction() const
{
    const auto along = [this](int forth, int back) {
        return (m_keys.contains(forth) ? 1.0 : 0.0) - (m_keys.contains(back) ? 1.0 : 0.0);
    };
    return {along(Qt::Key_D, Qt::Key_A), along(Qt::Key_E, Qt::Key_Q), along(Qt::Key_W, Qt::Key_S)};
}

void FlyTool::goOn()
{
    const auto now = m_clock();
    const auto elapsed = std::min<std::chrono::steady_clock::duration>(now - m_latest, longestFlightFrame);
    m_latest = now;
    if (m_keys.isEmpty())
        return;
    const double way = speed() * (m_isFast ? shiftFactor : 1) * std::chrono::duration<double>(elapsed).count();
    const VbVec3d toward = scaled(normalized(direction(), VbVec3d()), way);
    if (toward == VbVec3d())
        return;
    NxViewpoint viewpoint = m_view->viewpoint();
    const bool isFlat = viewpoint.projection == NxViewpoint::ORTHOGRAPHIC;
    if (isFlat) // nothing comes closer without getting larger
        viewpoint.zoom(
            static_cast<float>(std::exp(toward[2] / static_cast<double>(viewpoint.height))), viewpoint.focalPoint());
    const VbVec3d sideways = add(scaled(VbVec3d(viewpoint.rightAxis()), toward[0]), VbVec3d(0, toward[1], 0));
    const VbVec3d ahead = scaled(VbVec3d(viewpoint.viewDirection()), isFlat ? 0 : toward[2]);
    viewpoint.position = add(viewpoint.position, add(sideways, ahead));
    m_view->navigate(viewpoint);
}
