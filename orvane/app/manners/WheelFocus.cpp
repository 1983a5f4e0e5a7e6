#include "orvane/app/manners/WheelFocus.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDial>
#include <QSlider>
#include <QWheelEvent>

namespace {

QWidget* valueControl(QObject* object)
{
    if (!object->isWidgetType())
        return nullptr;
    auto* const widget = static_cast<QWidget*>(object);
    const bool isControl = qobject_cast<QAbstractSpinBox*>(widget) != nullptr
        || qobject_cast<QComboBox*>(widget) != nullptr || qobject_cast<QSlider*>(widget) != nullptr
        || qobject_cast<QDial*>(widget) != nullptr;
    return isControl ? widget : nullptr;
}

bool hasFocusInside(const QWidget* widget)
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus != nullptr && (focus == widget || widget->isAncestorOf(focus));
}

/// Passes the event on to the first area around the control that can scroll.
void scrollAround(const QWidget* control, const QWheelEvent& event)
{
    for (QWidget* each = control->parentWidget(); each != nullptr; each = each->parentWidget()) {
        auto* const area = qobject_cast<QAbstractScrollArea*>(each);
        if (area == nullptr)
            continue;
        QWidget* const viewport = area->viewport();
        QWheelEvent passed(viewport->mapFromGlobal(event.globalPosition()), event.globalPosition(), event.pixelDelta(),
            event.angleDelta(), event.buttons(), event.modifiers(), event.phase(), event.inverted(), event.source());
        passed.setTimestamp(event.timestamp());
        QCoreApplication::sendEvent(viewport, &passed);
        return;
    }
}

} // namespace

WheelFocus::WheelFocus(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

WheelFocus::~WheelFocus() = default;

bool WheelFocus::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Wheel && event->type() != QEvent::Polish)
        return false;
    QWidget* const control = valueControl(object);
    if (control == nullptr)
        return false;
    if (event->type() == QEvent::Polish) {
        if (control->focusPolicy() == Qt::WheelFocus)
            control->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    if (hasFocusInside(control))
        return false;
    scrollAround(control, *static_cast<QWheelEvent*>(event));
    return true;
}
