#pragma once

#include "orvane/app/fields/editors/CellEdit.h"
#include "orvane/app/fields/values/FieldRoles.h"
#include "orvane/app/fields/values/FieldSet.h"

#include "meridane/scene/fields/NxField.h"

namespace orvane {

/// The fields that an editor is made for, as the table has them now; empty if they have vanished.
[[nodiscard]] inline FieldSet fieldsOf(const QModelIndex& index)
{
    const auto* const fields = index.data(FieldRoles::FieldSetRole).value<const FieldSet*>();
    return fields != nullptr ? *fields : FieldSet();
}

/// The first field as one of its class; null if there is none.
template <typename Field>
[[nodiscard]] Field* fieldOf(const CellEdit& edit)
{
    const FieldSet fields = fieldsOf(edit.index);
    return fields.isEmpty() ? nullptr : dynamic_cast<Field*>(&fields.first());
}

} // namespace orvane
