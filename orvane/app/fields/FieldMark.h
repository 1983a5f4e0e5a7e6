#pragma once

/// What can be clicked at the end of each row of the field table.
enum class FieldMark {
    Ignore, ///< lets the scene ignore the field
    Favorite, ///< puts the field on top
    Reset, ///< sets the default
};
