#pragma once

#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/look/Look.h"

#include <QString>

/// The numbers of a field's value, as people see them.
namespace orvane {

/// The shortest text of the component that gives the same number.
[[nodiscard]] QString componentText(const NxField& field, int component);
/// Such as "x"; empty for a single number.
[[nodiscard]] QString letterOf(const NxField& field, int component);
[[nodiscard]] look::Tint tintOf(const NxField& field, int component);
/// The name of the field, and of the component if there are several, for people who can't see it.
[[nodiscard]] QString accessibleNameOf(const NxField& field, int component);

/// Whether the component differs among the fields. Takes time for each field.
[[nodiscard]] bool isComponentMixed(const FieldSet& fields, int component);

} // namespace orvane
