#pragma once

#include "meridane/scene/fields/NxField.h"

namespace meridane {

/// The field that holds the default of an ignored field. Returns the field itself if it isn't ignored or has no
/// default.
[[nodiscard]] const NxField& defaultFieldOf(const NxField& field);

/// The field whose value applies: the field itself, or the one that holds its default if it is ignored.
template <typename Field>
[[nodiscard]] const Field& effectiveField(const Field& field)
{
    return field.isIgnored() ? static_cast<const Field&>(defaultFieldOf(field)) : field;
}

} // namespace meridane
