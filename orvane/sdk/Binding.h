#pragma once

#include "orvane/sdk/Edit.h"
#include "orvane/sdk/FieldLink.h"
#include "orvane/sdk/FieldValue.h"

#include <type_traits>
#include <utility>

namespace orv {

/// Ties widgets to a field of a class, whichever field that is at the moment.
///
/// It shows the value in the widgets, with their signals blocked, when a field is attached and after each change of it.
/// What the user does in a widget it writes to the field, and pushes a command whose undo works. It keeps the node of
/// the field alive as long as the field is attached. Thread of the user interface only.
///
///     orv::Binding<NxSFFloat> angle;
///     angle.bind(dial, &QDial::valueChanged, [&](float value) { dial.setValue(int(value)); },
///         [](int value) { return float(value); });
///     angle.attach(&camera->fieldOfView);
template <typename Field>
class Binding : public FieldLink {
public:
    using Value = typename FieldValue<Field>::Type; ///< What the field holds.

    /// Follows this field from now on, instead of the one before; null for none.
    void attach(Field* field) { follow(field); }
    /// The field that is followed, or null.
    [[nodiscard]] Field* field() const noexcept { return static_cast<Field*>(followed()); }

    /// Calls `show` with the value now, if a field is attached, and after each change, with the signals of the widget
    /// blocked. The widget isn't owned, and may be destroyed at any time.
    template <typename Show>
    void show(QObject& widget, Show show)
    {
        addWidget(widget, [this, show = std::move(show)] { show(FieldValue<Field>::read(*field())); });
    }

    /// The same; and when the widget emits the signal, writes what `value` makes of the signal's arguments. A `value`
    /// without parameters reads the widget itself.
    template <typename Widget, typename Sender, typename... Arguments, typename Show, typename Make>
    void bind(Widget& widget, void (Sender::*signal)(Arguments...), Show show, Make value)
    {
        this->show(widget, std::move(show));
        QObject::connect(&widget, signal, &context(), [this, value = std::move(value)](Arguments... arguments) {
            if constexpr (std::is_invocable_v<const Make&, Arguments...>)
                set(value(arguments...));
            else
                set(value());
        });
    }

    /// Writes a value and pushes a command. Returns false, and changes nothing, if there is no field, if it has the
    /// value already, or if it doesn't take it; then the widgets show the field again.
    bool set(const Value& value)
    {
        Field* const present = field();
        if (present == nullptr)
            return false;
        if constexpr (FieldValue<Field>::isComparable) {
            if (FieldValue<Field>::read(*present) == value)
                return false;
        }
        const bool isWritten = edit(*present, value);
        if (!isWritten)
            refresh();
        return isWritten;
    }
};

} // namespace orv
