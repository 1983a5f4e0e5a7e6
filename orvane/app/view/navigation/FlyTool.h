#pragma once

#include "orvane/app/view/ViewTool.h"

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QObject>
#include <QPointF>
#include <QSet>
#include <QTimer>

#include <chrono>
#include <functional>

class SceneView;

/// Flying through the scene while the right button is held: the mouse looks around, W and S go on and back, A and D to
/// the left and to the right, Q and E down and up. The wheel changes the speed, Shift makes it faster, Escape goes back
/// to the start.
///
/// A click of that button, without a move or a key, is the context menu as ever. The speed follows the scene's size.
class FlyTool : public QObject, public ViewTool {
    Q_OBJECT

public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    /// How often as fast with Shift.
    static constexpr double shiftFactor = 4;

    /// The view is the parent.
    explicit FlyTool(SceneView* view, Clock clock = &std::chrono::steady_clock::now);

    [[nodiscard]] bool isFlying() const noexcept { return m_isFlying; }
    /// How often as fast as usual flights are, more than 0; the wheel changes it from there.
    void setSpeedFactor(double factor) { m_factor = factor; }
    /// In scene units per second, without Shift.
    [[nodiscard]] double speed() const;

    bool mousePress(const QMouseEvent& event) override;
    bool mouseMove(const QMouseEvent& event) override;
    void mouseRelease(const QMouseEvent& event) override;
    void cancel() override;
    [[nodiscard]] bool wantsKey(const QKeyEvent& event) const override;
    bool keyPress(const QKeyEvent& event) override;
    /// Of the view: what a tool doesn't get.
    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// Something for the status bar; empty when the flight ends.
    void said(const QString& text);

private:
    void begin();
    void end();
    void releaseKey(int key);
    void look(const QPointF& way);
    void changeSpeed(double notches);
    void goOn();
    [[nodiscard]] VbVec3d direction() const;

    SceneView* m_view;
    Clock m_clock;
    QTimer m_timer;
    QSet<int> m_keys; // of the flight, that are held
    std::chrono::steady_clock::time_point m_latest; // until then the flight has been computed
    NxViewpoint m_start;
    QPointF m_pressed;
    QPointF m_last;
    double m_factor = 1; // of the speed, by the wheel
    double m_size = 1; // of the scene
    bool m_isHeld = false; // the right button
    bool m_isFlying = false;
    bool m_isFast = false;
};
