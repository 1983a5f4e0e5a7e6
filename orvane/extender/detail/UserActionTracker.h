#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <chrono>
#include <cstdint>

class QKeyEvent;
class QPointerEvent;

/// Finds the commands that belong together because they have been caused by one action of the user.
///
/// An action begins when a mouse button, a key (but not its automatic repetition) or a finger goes down, or the wheel
/// turns. It ends when that button, key or finger has been released and everything that the release caused, including
/// posted events, has been delivered. A turn of the wheel ends when control is back in the event loop. Input while a
/// button or finger is down (a modifier key, a second button) belongs to the same action. A key that goes down while
/// another one is held begins a new action, since the keys of a fast writer overlap.
///
/// It watches every event of the application object that exists when it is made.
class UserActionTracker : public QObject {
    Q_OBJECT

public:
    using Clock = std::chrono::steady_clock::time_point (*)();

    /// Tests pass a clock of their own.
    explicit UserActionTracker(Clock clock = &std::chrono::steady_clock::now);
    ~UserActionTracker() override;

    /// How far apart two keys that are typed into one line may be to belong together.
    static constexpr std::chrono::seconds typingPause{2};

    static constexpr int none = -1;
    /// The number of the current action, or `none`.
    [[nodiscard]] int currentAction() const noexcept { return m_action; }
    /// A number of the text that the user is typing, or `none`: the same one for all keys that go to one line or text
    /// widget, until another control is used, the focus leaves, Return is pressed or two seconds pass without a key.
    [[nodiscard]] int currentTyping() const noexcept { return m_action == none ? none : m_typing; }

Q_SIGNALS:
    /// An action begins; its event hasn't been delivered yet.
    void began();
    /// An action has ended, and no other one has begun.
    void ended();

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
    void begin(Holder holder, std::uint64_t timestamp, int typing = none);
    [[nodiscard]] bool isPointerDown() const noexcept
    {
        return m_holder == Holder::Button || m_holder == Holder::Touch;
    }

    [[nodiscard]] int typingOf(const QKeyEvent& event);

    Clock m_clock;
    int m_action = none;
    int m_typing = none;
    int m_lastTyping = 0;
    QPointer<QWidget> m_typedInto;
    std::chrono::steady_clock::time_point m_typedAt;
    int m_lastAction = 0;
    Holder m_holder = Holder::Nothing;
    /// When the action began. An event is seen once for each window and widget that it is delivered to.
    std::uint64_t m_beganAt = 0;
    /// The key that began the action.
    std::uint32_t m_key = 0;
};
