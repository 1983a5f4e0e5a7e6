#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/NxRef.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <list>

class NxField;

namespace orv {

/// The part of a `Binding` that doesn't depend on the class of the field: it follows one field, keeps its node alive
/// and shows it in widgets. Thread of the user interface only.
class FieldLink {
public:
    FieldLink();
    FieldLink(const FieldLink&) = delete;
    FieldLink& operator=(const FieldLink&) = delete;
    ~FieldLink();

    /// Whether a field is followed.
    [[nodiscard]] bool isAttached() const noexcept { return m_sensor.getAttachedField() != nullptr; }
    /// Stops following the field and releases its node. The widgets keep what they show. When the scene is about to be
    /// closed, that happens by itself.
    void detach();
    /// Shows the field in all widgets, if one is attached.
    void refresh();
    /// Forgets all widgets.
    void clear();

protected:
    /// Follows a field, or none, and shows it at once.
    void follow(NxField* field);
    [[nodiscard]] NxField* followed() const noexcept { return m_sensor.getAttachedField(); } ///< The field, or null.
    /// Adds a widget, which `show` writes with its signals blocked: now if a field is attached, and after each change.
    /// A widget that is destroyed is forgotten.
    void addWidget(QObject& widget, std::function<void()> show);
    /// The context of connections to the widgets, which end with the binding.
    [[nodiscard]] QObject& context() noexcept { return m_context; }

private:
    struct Shown {
        QPointer<QObject> widget;
        std::function<void()> show;
    };

    static void show(const Shown& shown);

    NxFieldSensor m_sensor;
    NxRef<NxFieldContainer> m_node;
    std::list<Shown> m_widgets; // what is shown may add widgets
    QObject m_context;
    QMetaObject::Connection m_closing;
};

} // namespace orv
