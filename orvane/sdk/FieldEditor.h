#pragma once

#include "orvane/sdk/Binding.h"
#include "orvane/sdk/FieldEditorBase.h"

#include <utility>

namespace orv {

/// An editor of the fields of one class, which the dock "Field Editor" shows. A derived class makes its widgets in
/// `build` and ties them to the field:
///
///     class AngleEditor final : public orv::FieldEditor<SFAngle> {
///         void build() override
///         {
///             auto& dial = add<QDial>();
///             bind(dial, &QDial::valueChanged, [&dial](const Angle& angle) { dial.setValue(int(angle.degrees)); },
///                 [](int degrees) { return Angle{float(degrees)}; });
///         }
///     };
template <typename Field>
class FieldEditor : public FieldEditorBase {
public:
    using Value = typename FieldValue<Field>::Type; ///< What the field holds.

protected:
    /// The extension's name is that of the class of fields, or the given one.
    explicit FieldEditor(const char* name = nullptr)
        : FieldEditorBase(Field::getClassTypeId(), name)
    {
    }
    ~FieldEditor() override { destroyWidgets(); }

    /// The field that is shown, or null.
    [[nodiscard]] Field* field() const noexcept { return m_binding.field(); }
    [[nodiscard]] Binding<Field>& binding() noexcept { return m_binding; } ///< Follows the edited field.

    /// Shows the field in a widget and writes what the user does there: see `Binding::bind`.
    template <typename... Arguments>
    void bind(Arguments&&... arguments)
    {
        m_binding.bind(std::forward<Arguments>(arguments)...);
    }

private:
    void attachField(NxField* field) override { m_binding.attach(static_cast<Field*>(field)); }
    void forgetWidgets() override { m_binding.clear(); }

    Binding<Field> m_binding;
};

} // namespace orv
