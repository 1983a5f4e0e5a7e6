#pragma once

class NxField;
class NxType;
class QHBoxLayout;
class QLineEdit;
class QWidget;

// The line of an editor that shows its value as a text.
namespace orvane {

/// Adds a line named "lineEdit", which fills the width of an edit area; the area owns it.
[[nodiscard]] QLineEdit* addEditLine(QWidget& area, QHBoxLayout& layout);

/// Shows the text of a field of that type, which is `NxSFString` or one derived from it; of a field of any other type
/// its text form; nothing without a field.
void showString(QLineEdit* line, NxField* field, const NxType& type);
/// Writes the line's text to such a field and pushes the command. Does nothing without a field.
void applyString(const QLineEdit* line, NxField* field, const NxType& type);

} // namespace orvane
