#pragma once

#include <QPersistentModelIndex>

class CellServices;

/// What an editor of a cell is made for.
struct CellEdit {
    /// What opened the editor. An editor that is reached by Tab opens no popup by itself.
    enum class Reason { Key, Click, Tab };

    QPersistentModelIndex index; ///< gives the fields, see `FieldRoles::FieldSetRole`
    int part = 0; ///< of the value, such as a component
    Reason reason = Reason::Key;
    CellServices* services = nullptr;
};
