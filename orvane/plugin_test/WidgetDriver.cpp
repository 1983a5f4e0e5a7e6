#include "WidgetDriver.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>

namespace {

void press(QWidget& widget, Qt::Key key, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}

// The parts of these are driven with the whole.
bool isPart(const QWidget& widget)
{
    const QWidget* const parent = widget.parentWidget();
    return qobject_cast<const QAbstractSpinBox*>(parent) != nullptr
        || qobject_cast<const QComboBox*>(parent) != nullptr;
}

void drive(QWidget& widget)
{
    if (qobject_cast<QScrollBar*>(&widget) != nullptr || isPart(widget))
        return;
    if (auto* const slider = qobject_cast<QAbstractSlider*>(&widget)) {
        // At an end, the other direction.
        press(widget, slider->value() < slider->maximum() ? Qt::Key_Up : Qt::Key_Down);
    } else if (auto* const box = qobject_cast<QAbstractSpinBox*>(&widget)) {
        box->stepUp();
        press(widget, Qt::Key_Return);
    } else if (auto* const combo = qobject_cast<QComboBox*>(&widget)) {
        press(widget, combo->currentIndex() + 1 < combo->count() ? Qt::Key_Down : Qt::Key_Up);
    } else if (auto* const line = qobject_cast<QLineEdit*>(&widget)) {
        line->end(false);
        press(widget, Qt::Key_1, QStringLiteral("1"));
        press(widget, Qt::Key_Return, QStringLiteral("\r"));
    } else if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
        button->click();
    }
}

} // namespace

void driveControls(QWidget& widget, Controls which, const std::function<void()>& used)
{
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [] {
        if (QWidget* const dialog = QApplication::activeModalWidget())
            dialog->close();
    });
    closer.start(0);
    // A control may be destroyed by another one.
    QList<QPointer<QWidget>> controls;
    for (QWidget* const child : widget.findChildren<QWidget*>())
        controls.append(child);
    for (const QPointer<QWidget>& control : std::as_const(controls)) {
        if (control.isNull() || !control->isEnabled() || !control->isVisibleTo(&widget))
            continue;
        if (which == Controls::Values && qobject_cast<QAbstractButton*>(control.data()) != nullptr)
            continue;
        drive(*control);
        QApplication::processEvents();
        used();
    }
}
