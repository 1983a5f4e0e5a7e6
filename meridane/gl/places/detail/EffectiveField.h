#pragma once

#include "meridane/scene/fields/NxField.h"

namespace meridane {

/// The field whose value counts: the field itself, or the one that holds its default if it is ignored.
[[nodiscard]] const NxField& defaultFieldOf(const NxField& field);

template <typename Field>
[[nodiscard]] const Field& effectiveField(const Field& field)
{
    return field.isIgnored() ? static_cast<const Field&>(defaultFieldOf(field)) : field;
}

} // namespace meridane
