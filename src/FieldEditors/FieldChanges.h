#pragma once

class NxField;
class NxMField;
class VbString;

// How a user's action changes a field: the field is written first, then the command is built and pushed.
// Contract: a command that reads the field for its undo finds the new value there, so its undo changes nothing. Only a
// snapshot of the value, the ignored flag and the commands that add, remove and swap rows can be undone.
namespace orvane {

/// Pushes the command of a value that has just been written to the field; its undo writes that same value.
void pushSetValueCommand(NxField* field);
/// The same with the text of the former value, which undo writes. It is null afterwards, so that it serves one command
/// only. An empty text counts as none.
void pushSetValueCommand(NxField* field, VbString& previousValue);

/// Pushes the command of a row that has just been written to the list; its undo writes that same value.
void pushSetRowCommand(NxMField* field, int row);
/// The same for a row that was written as a whole from a dialog.
void pushSetRowValueCommand(NxMField* field, int row);

/// Sets the ignored flag, then pushes the command. Does nothing without a field.
void setFieldIgnored(NxField* field, bool ignored);

/// Gives the field the value that it has in a new instance of its container's class, then pushes the command. Does
/// nothing without a field, and for a field that has no container or whose class makes no instances.
///
/// Contract: the new instance is neither referenced nor released, so each call leaves one behind.
void setDefaultFieldValue(NxField* field);

} // namespace orvane
