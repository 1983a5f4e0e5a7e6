#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

/// The lines, buttons and views of a window that a user can see and use. Buttons that open a menu at once are left out:
/// such a menu has an event loop of its own until it is closed.
inline QList<QWidget*> usableControls(const QWidget& window)
{
    QList<QWidget*> controls;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const auto* const button = qobject_cast<QToolButton*>(widget);
        const bool opensMenu = button != nullptr && button->popupMode() == QToolButton::InstantPopup;
        const bool isControl = qobject_cast<QLineEdit*>(widget) != nullptr
            || qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QAbstractItemView*>(widget) != nullptr;
        if (isControl && !opensMenu && widget->isVisible() && widget->isEnabled() && widget->window() == &window)
            controls.append(widget);
    }
    return controls;
}
