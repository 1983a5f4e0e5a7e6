#pragma once

#include <Qt>

/// What the rows of the field table have for their delegates and menus, beside the usual roles.
namespace FieldRoles {

enum Role {
    /// A `const FieldSet*`: the fields of the row; null for rows without, such as groups. Valid until the row changes.
    FieldSetRole = Qt::UserRole,
    /// Whether the values of several nodes differ.
    MixedRole,
    /// Whether a value isn't the default.
    ChangedRole,
    /// Whether all fields of the row are ignored.
    IgnoredRole,
    /// Whether the row is a favourite.
    FavoriteRole,
};

} // namespace FieldRoles
