#pragma once

class NxField;
class NxMField;
class VbString;

// What a user's action does to a field: the field is written first, and only then is the command built and pushed. So a
// command that reads the field for what its undo restores finds the new value there, and its undo changes nothing. That
// is meant: only a snapshot of the value, the ignored flag and the structural commands of lists can be undone.
namespace orvane {

/// Pushes the command of a value that has just been written to the field; its undo writes that same value.
void pushSetValueCommand(NxField* field);
/// The same with a snapshot of the former value in text form, which is what undo writes. It serves one command and is
/// null afterwards. An empty snapshot counts as none.
void pushSetValueCommand(NxField* field, VbString& previousValue);

/// Pushes the command of a row that has just been written to the list; its undo writes that same value.
void pushSetRowCommand(NxMField* field, int row);
/// The same for a row that was written as a whole from a dialog.
void pushSetRowValueCommand(NxMField* field, int row);

/// Takes the value from its text form; a text that the field refuses leaves it as it was. Then pushes the command.
void writeFieldText(NxField* field, const VbString& text);

/// Sets the ignored flag, then pushes the command. Does nothing without a field.
void setFieldIgnored(NxField* field, bool ignored);

/// Gives the field the value that it has in a new instance of its container's class, then pushes the command. Does
/// nothing without a field, and for a field that has no container or whose class makes no instances.
///
/// The new instance is neither referenced nor released. Each call leaves one behind, and that is meant.
void setDefaultFieldValue(NxField* field);

} // namespace orvane
