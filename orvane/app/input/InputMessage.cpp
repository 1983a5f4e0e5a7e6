#include "orvane/app/input/InputMessage.h"

#include "orvane/app/look/Look.h"

#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace {

using std::chrono::milliseconds;

constexpr int gap = 2; // to the widget, in pixels
constexpr int widestText = 60; // in characters of average width

/// As long as it takes to notice and to read.
milliseconds readingTime(const QString& text)
{
    constexpr milliseconds toNotice(3000);
    constexpr milliseconds perCharacter(60);
    constexpr milliseconds most(15000);
    return std::min(most, toNotice + perCharacter * static_cast<int>(text.size()));
}

} // namespace

void InputMessage::showFor(QWidget* widget, const QString& text, Kind kind)
{
    delete shownIn(widget);
    auto* const message = new InputMessage(widget, {}, text, kind);
    message->describeWidget(text);
    if (auto* const line = qobject_cast<QLineEdit*>(widget))
        connect(line, &QLineEdit::textEdited, message, &InputMessage::dismiss);
}

void InputMessage::showBriefly(QWidget* widget, const QRect& place, const QString& text, Kind kind)
{
    // The editor of a cell may just have been hidden.
    QPoint offset;
    while (!widget->isVisible() && !widget->isWindow() && widget->parentWidget() != nullptr) {
        offset += widget->pos();
        widget = widget->parentWidget();
    }
    delete shownIn(widget);
    auto* const message = new InputMessage(widget, place.translated(offset), text, kind);
    QTimer::singleShot(readingTime(text), message, &InputMessage::dismiss);
}

void InputMessage::clear(const QWidget* widget)
{
    if (InputMessage* const message = shownIn(widget); message != nullptr && message->m_widget == widget)
        message->dismiss();
}

InputMessage* InputMessage::shownIn(const QWidget* widget)
{
    for (auto* const message : widget->window()->findChildren<InputMessage*>(Qt::FindDirectChildrenOnly)) {
        if (!message->m_dismissed)
            return message;
    }
    return nullptr;
}

InputMessage::InputMessage(QWidget* widget, const QRect& place, const QString& text, Kind kind)
    : QFrame(widget->window(), Qt::ToolTip | Qt::FramelessWindowHint)
    , m_widget(widget)
    , m_place(place)
    , m_kind(kind)
    , m_label(new QLabel(this))
{
    setObjectName(QStringLiteral("inputMessage"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    auto* const layout = new QHBoxLayout(this);
    const int space = orvane::look::unit(fontMetrics());
    layout->setContentsMargins(3 * space, space, 2 * space, space);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setText(text);
    layout->addWidget(m_label);
    setAccessibleName(text);
    watch();
    fitText();
    placeBeside();
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString InputMessage::text() const
{
    return m_label->text();
}

void InputMessage::watch()
{
    for (QWidget* each = m_widget; each != nullptr; each = each->parentWidget()) {
        each->installEventFilter(this);
        if (each->isWindow())
            break;
    }
    connect(m_widget, &QObject::destroyed, this, &InputMessage::dismiss);
    // A window of this kind would stay above those of other programs.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        [this](Qt::ApplicationState state) { setVisible(state == Qt::ApplicationActive && !m_dismissed); });
}

bool InputMessage::eventFilter(QObject* /*object*/, QEvent* event)
{
    if (m_dismissed)
        return false;
    if (event->type() == QEvent::Hide || event->type() == QEvent::ParentChange)
        dismiss();
    else if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        placeBeside();
    return false;
}

void InputMessage::fitText()
{
    ensurePolished();
    const QFontMetrics metrics = m_label->fontMetrics();
    const int widest = widestText * metrics.averageCharWidth();
    const QRect needed
        = metrics.boundingRect(QRect(0, 0, widest, QWIDGETSIZE_MAX), Qt::TextWordWrap | Qt::AlignLeft, m_label->text());
    m_label->setFixedSize(needed.width() + 1, needed.height());
    adjustSize();
}

void InputMessage::placeBeside()
{
    if (m_widget == nullptr)
        return;
    const QRect inside = m_place.isNull() ? m_widget->rect() : m_place;
    const QRect beside(m_widget->mapToGlobal(inside.topLeft()), inside.size());
    const QRect screen = m_widget->screen()->availableGeometry();
    QPoint corner(beside.left(), beside.bottom() + 1 + gap);
    if (corner.y() + height() > screen.bottom() + 1)
        corner.setY(beside.top() - gap - height());
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() + 1 - width())));
    corner.setY(std::max(screen.top(), std::min(corner.y(), screen.bottom() + 1 - height())));
    move(corner);
}

void InputMessage::describeWidget(const QString& text)
{
    m_formerDescription = m_widget->accessibleDescription();
    m_widget->setAccessibleDescription(text);
}

// It may be inside a signal or an event of the widget, or of its own.
void InputMessage::dismiss()
{
    if (m_dismissed)
        return;
    m_dismissed = true;
    if (m_widget != nullptr && m_widget->accessibleDescription() == text())
        m_widget->setAccessibleDescription(m_formerDescription);
    hide();
    deleteLater();
}

void InputMessage::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const auto tint = m_kind == Kind::Error ? orvane::look::Tint::Error : orvane::look::Tint::Warning;
    const QColor background = palette().color(QPalette::Base);
    const QColor color = orvane::look::markColor(tint, background);
    painter.fillRect(rect(), background);
    painter.setPen(color);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(0, 0, orvane::look::unit(fontMetrics()), height(), color);
}

void InputMessage::mousePressEvent(QMouseEvent* /*event*/)
{
    dismiss();
}
