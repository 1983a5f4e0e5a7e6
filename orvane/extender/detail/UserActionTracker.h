#pragma once

#include <QObject>

#include <cstdint>

class QKeyEvent;
class QPointerEvent;

/// Tells which commands belong together because one action of the user gave rise to them.
///
/// An action begins when a mouse button, a key (but not its automatic repetition) or a finger goes down or the wheel
/// turns. It goes on until what began it has been released and everything that the release led to, posted events
/// included, has been delivered; a turn of the wheel until control is back in the event loop. What comes in while a
/// button or finger is down (a modifier key, a second button) belongs to the same action; a key that goes down while
/// another one is held begins a new one, since a fast writer's keys overlap.
///
/// It watches every event of the application object that exists when it is made.
class UserActionTracker : public QObject {
public:
    UserActionTracker();
    ~UserActionTracker() override;

    static constexpr int none = -1;
    /// A number that stands for the present action, or `none`.
    [[nodiscard]] int currentAction() const noexcept { return m_action; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

private:
    enum class Holder : std::uint8_t { Nothing, Button, Key, Touch };

    void buttonPressed(const QPointerEvent& event);
    void keyPressed(const QKeyEvent& event);
    void wheelTurned(const QPointerEvent& event);
    void touchBegan(const QPointerEvent& event);
    void released();
    void begin(Holder holder, std::uint64_t timestamp);
    [[nodiscard]] bool isPointerDown() const noexcept
    {
        return m_holder == Holder::Button || m_holder == Holder::Touch;
    }

    int m_action = none;
    int m_lastAction = 0;
    Holder m_holder = Holder::Nothing;
    /// When the action began: an event passes through here once for each window and widget that it is offered to.
    std::uint64_t m_beganAt = 0;
    /// The key that holds the action.
    std::uint32_t m_key = 0;
};
