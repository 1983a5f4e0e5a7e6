#include "orvane/app/manners/WheelFocus.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDial>
#include <QEvent>
#include <QSlider>

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
    event->ignore(); // it goes on to the control's parents
    return true;
}
