#pragma once

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxField.h"

#include <QString>

#include <concepts>
#include <type_traits>
#include <utility>
#include <vector>

namespace orv {

using orvane::toQString;
using orvane::toVbString;

/// A field class with a single value.
template <typename Field>
concept SingleValued = requires(Field& field, const Field& same)
{
    field.setValue(same.getValue());
};

/// A field class with a list of values.
template <typename Field>
concept ListValued = requires(Field& field, const Field& same)
{
    field.setValues(same.getValues());
};

/// How the kit reads and writes the value of a field. For `NxField` itself, which may be a field of any class, the
/// value is its text.
template <typename Field>
struct FieldValue {
    using Type = QString; ///< The text form.
    /// Whether two values can be compared.
    static constexpr bool isComparable = true;

    /// The value of the field.
    [[nodiscard]] static Type read(const NxField& field)
    {
        VbString text;
        field.get(text);
        return toQString(text);
    }
    /// Returns false, and changes nothing, if the field doesn't take the text.
    static bool write(NxField& field, const Type& value) { return field.set(toVbString(value)); }
};

/// The value is that of the class.
template <SingleValued Field>
struct FieldValue<Field> {
    using Type = std::remove_cvref_t<decltype(std::declval<const Field&>().getValue())>; ///< As `getValue` returns it.
    static constexpr bool isComparable = std::equality_comparable<Type>; ///< Whether values can be compared.

    [[nodiscard]] static Type read(const Field& field) { return field.getValue(); } ///< The value of the field.
    /// Returns false if the field refuses the value.
    static bool write(Field& field, const Type& value)
    {
        field.setValue(value);
        return true;
    }
};

/// The value is a vector of all values of the list.
template <ListValued Field>
struct FieldValue<Field> {
    /// A value of the list.
    using Row = typename decltype(std::declval<const Field&>().getValues())::value_type;
    using Type = std::vector<Row>; ///< All values of the list.
    static constexpr bool isComparable = std::equality_comparable<Row>; ///< Whether values can be compared.

    /// The value of the field.
    [[nodiscard]] static Type read(const Field& field)
    {
        const auto values = field.getValues();
        return {values.begin(), values.end()};
    }
    /// Returns false, and changes nothing, if the values don't fit in memory.
    static bool write(Field& field, Type value) { return field.setValues(std::move(value)); }
};

} // namespace orv
