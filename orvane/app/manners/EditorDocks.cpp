#include "orvane/app/manners/EditorDocks.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvPluginsManager.h"

#include "meridane/scene/fields/NxField.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>

namespace {

bool takesValues(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QAbstractSpinBox*>(widget) != nullptr
        || qobject_cast<const QAbstractSlider*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr
        || qobject_cast<const QAbstractItemView*>(widget) != nullptr;
}

/// The field whose editor the dock shows; null for another dock.
NxField* fieldIn(const QDockWidget* dock)
{
    const OrvPluginsManager* const plugins = OrvPluginsManager::getInstance();
    if (plugins == nullptr || dock->widget() == nullptr)
        return nullptr;
    for (OrvExtension* const extension : plugins->getExtensions()) {
        const auto* const editor = dynamic_cast<const OrvEditor*>(extension);
        if (editor != nullptr && editor->getWidget() == dock->widget())
            return dynamic_cast<NxField*>(editor->getEditedObject());
    }
    return nullptr;
}

} // namespace

EditorDocks::EditorDocks(QMainWindow* window)
    : m_window(window)
{
}

QDockWidget* EditorDocks::dockOf(const QWidget* widget)
{
    for (QWidget* each = widget != nullptr ? widget->parentWidget() : nullptr; each != nullptr;
         each = each->parentWidget()) {
        if (auto* const dock = qobject_cast<QDockWidget*>(each))
            return fieldIn(dock) != nullptr ? dock : nullptr;
    }
    return nullptr;
}

NxField* EditorDocks::fieldOf(const QWidget* widget)
{
    const QDockWidget* const dock = dockOf(widget);
    return dock != nullptr ? fieldIn(dock) : nullptr;
}

QWidget* EditorDocks::firstControl(const QWidget* inside)
{
    if (inside == nullptr)
        return nullptr;
    QWidget* other = nullptr; // such as a check box or a button
    for (QWidget* const widget : inside->findChildren<QWidget*>()) {
        const bool isUsable = widget->isEnabled() && !widget->isHidden() && widget->window() == inside->window()
            && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
        if (isUsable && takesValues(widget))
            return widget;
        if (isUsable && other == nullptr)
            other = widget;
    }
    return other;
}

QDockWidget* EditorDocks::first() const
{
    if (m_window == nullptr)
        return nullptr;
    for (QDockWidget* const dock : m_window->findChildren<QDockWidget*>()) {
        if (!dock->isHidden() && fieldIn(dock) != nullptr)
            return dock;
    }
    return nullptr;
}
