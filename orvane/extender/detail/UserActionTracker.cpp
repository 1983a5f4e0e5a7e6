#include "orvane/extender/detail/UserActionTracker.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

class EndEvent : public QEvent {
public:
    explicit EndEvent(int action)
        : QEvent(eventType())
        , m_action(action)
    {
    }

    static Type eventType()
    {
        static const auto type = static_cast<Type>(registerEventType());
        return type;
    }

    [[nodiscard]] int action() const noexcept { return m_action; }

private:
    int m_action;
};

// The scan code identifies the key itself: if Shift is released before 1, the key changes from ! to 1. Synthetic events
// have no scan code.
std::uint32_t keyOf(const QKeyEvent& event)
{
    return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<std::uint32_t>(event.key());
}

bool isTextWidget(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QAbstractSpinBox*>(widget) != nullptr
        || qobject_cast<const QPlainTextEdit*>(widget) != nullptr || qobject_cast<const QTextEdit*>(widget) != nullptr;
}

} // namespace

UserActionTracker::UserActionTracker(Clock clock)
    : m_clock(clock)
{
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
}

UserActionTracker::~UserActionTracker() = default;

bool UserActionTracker::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        buttonPressed(*static_cast<const QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        if (m_holder == Holder::Button && static_cast<const QMouseEvent*>(event)->buttons() == Qt::NoButton)
            released();
        break;
    // The press of a key that is a shortcut is a ShortcutOverride only.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        keyPressed(*static_cast<const QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease: {
        const auto* const key = static_cast<const QKeyEvent*>(event);
        if (m_holder == Holder::Key && !key->isAutoRepeat() && keyOf(*key) == m_key)
            released();
        break;
    }
    case QEvent::Wheel:
        wheelTurned(*static_cast<const QPointerEvent*>(event));
        break;
    case QEvent::TouchBegin:
        touchBegan(*static_cast<const QPointerEvent*>(event));
        break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (m_holder == Holder::Touch)
            released();
        break;
    // If the user changes to another application with a key held down, the key is released there.
    case QEvent::ApplicationStateChange:
        if (m_holder == Holder::Key)
            released();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void UserActionTracker::buttonPressed(const QPointerEvent& event)
{
    // A press that is passed on to a parent, a second button, and a mouse press made from a touch belong to the action.
    const Qt::MouseButtons buttons = static_cast<const QMouseEvent&>(event).buttons();
    const bool isOnlyButton = qPopulationCount(buttons.toInt()) <= 1;
    const bool isNew = m_holder != Holder::Touch && isOnlyButton && event.timestamp() != m_beganAt;
    if (!isPointerDown() || isNew)
        begin(Holder::Button, event.timestamp());
}

void UserActionTracker::keyPressed(const QKeyEvent& event)
{
    if (isPointerDown() || event.isAutoRepeat())
        return;
    const bool isOfferedAgain = m_holder == Holder::Key && keyOf(event) == m_key && event.timestamp() == m_beganAt;
    if (isOfferedAgain)
        return;
    begin(Holder::Key, event.timestamp(), typingOf(event));
    m_key = keyOf(event);
}

void UserActionTracker::wheelTurned(const QPointerEvent& event)
{
    if (isPointerDown() || (m_action != none && event.timestamp() == m_beganAt))
        return;
    begin(Holder::Nothing, event.timestamp());
    released();
}

void UserActionTracker::touchBegan(const QPointerEvent& event)
{
    if (!isPointerDown())
        begin(Holder::Touch, event.timestamp());
}

int UserActionTracker::typingOf(const QKeyEvent& event)
{
    QWidget* const widget = QApplication::focusWidget();
    const auto now = m_clock();
    const bool goesOn = m_typing != none && widget == m_typedInto && now - m_typedAt < typingPause;
    m_typedInto = isTextWidget(widget) ? widget : nullptr;
    m_typedAt = now;
    if (m_typedInto == nullptr)
        return none;
    const bool isLast = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const int typing = goesOn ? m_typing : ++m_lastTyping;
    if (isLast)
        m_typedInto = nullptr;
    return typing;
}

void UserActionTracker::begin(Holder holder, std::uint64_t timestamp, int typing)
{
    m_typing = typing;
    m_lastAction = m_lastAction == std::numeric_limits<int>::max() ? 1 : m_lastAction + 1;
    m_action = m_lastAction;
    m_holder = holder;
    m_beganAt = timestamp;
    Q_EMIT began();
}

void UserActionTracker::released()
{
    m_holder = Holder::Nothing;
    // After the release and everything that it posts, such as the queued commit of a cell editor, have been delivered.
    QCoreApplication::postEvent(this, new EndEvent(m_action), Qt::LowEventPriority);
}

bool UserActionTracker::event(QEvent* event)
{
    if (event->type() != EndEvent::eventType())
        return QObject::event(event);
    if (m_holder == Holder::Nothing && static_cast<const EndEvent*>(event)->action() == m_action) {
        m_action = none;
        Q_EMIT ended();
    }
    return true;
}
