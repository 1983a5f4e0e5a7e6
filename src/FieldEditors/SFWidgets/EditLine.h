#pragma once

class NxField;
class NxType;
class QHBoxLayout;
class QLineEdit;
class QWidget;

// The one line of an editor that shows its value as a text.
namespace orvane {

/// Adds the line named "lineEdit" that takes all the width of an edit area; the area owns it.
[[nodiscard]] QLineEdit* addEditLine(QWidget& area, QHBoxLayout& layout);

/// Shows the text of a field of that type, which is `NxSFString` or one derived from it; of a field of any other type
/// its text form; nothing without a field.
void showString(QLineEdit* line, NxField* field, const NxType& type);
/// Writes the line's text to a field the same way and pushes the command. Does nothing without a field.
void applyString(const QLineEdit* line, NxField* field, const NxType& type);

} // namespace orvane
