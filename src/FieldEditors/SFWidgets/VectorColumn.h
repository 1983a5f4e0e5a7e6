#pragma once

class NxField;
class QFrame;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

// What the editors of values with two to four numbers side by side share.
namespace orvane {

/// Puts a label above the control of one component, at their heights, and the column at the end of the row. Name,
/// margins and spacing of the column are left to the editor.
QVBoxLayout* addVectorColumn(QHBoxLayout* row, QLabel* label, QWidget* control);

/// Pushes the command of a value that has just been written. If the edit area is a slider, undo restores a copy of the
/// slider's snapshot, which isn't changed.
void pushVectorCommand(NxField* field, QFrame* editionFrame);

} // namespace orvane
