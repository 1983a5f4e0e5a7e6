#pragma once

#include "orvane/sdk/FieldValue.h"

#include <QString>

#include <functional>
#include <type_traits>

class NxField;

/// \file
/// How a plug-in changes the scene, so that each change can be undone. Thread of the user interface only.
namespace orv {

/// Runs `write`, which changes the value of this field alone, and pushes a command whose undo puts the former value
/// back. Returns what `write` returns; if that is false, it must have changed nothing, and no command is pushed.
///
/// The command keeps the field's node alive. A field without a node is written without a command, since nothing could
/// keep it alive. For a field of the open scene the history records what is written, such as some rows of a list; of
/// other fields the command copies the value. If a copy of the value doesn't fit in memory, an `NxMemoryError` is
/// reported, nothing is written, and the result is false.
bool editBy(NxField& field, const std::function<bool()>& write);

/// Writes a value and pushes a command whose undo puts the former value back. Returns false, and changes nothing, if
/// the field doesn't take the value.
template <typename Field>
bool edit(Field& field, const std::type_identity_t<typename FieldValue<Field>::Type>& value)
{
    return editBy(field, [&] { return FieldValue<Field>::write(field, value); });
}

/// The same with the text form of the value. A text that doesn't parse as a whole changes nothing and returns false.
bool editText(NxField& field, const QString& text);

/// Sets the field to its default, that of a new node of its class. Does nothing and returns false for a field without a
/// node, and for one that has its default already.
bool editToDefault(NxField& field);

/// Sets the ignored flag. Does nothing and returns false for a field that has it already, or has no node.
bool editIgnored(NxField& field, bool ignored);

/// Runs `changes`, all of which is one step of the history with that label, such as "Aim the lamps". It may change
/// whatever belongs to the open scene, in any way: fields, names, children. While it runs another `edit` of this kind,
/// both are the outer step. What it throws is passed on; the step then holds what was changed before.
void edit(const QString& label, const std::function<void()>& changes);

} // namespace orv
