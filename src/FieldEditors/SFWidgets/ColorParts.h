#pragma once

class QColor;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// What the editors of a colour share.
namespace orvane {

/// Gives the row of a colour editor its margins and spacing, and puts the button that shows the colour at its end; it
/// shows black at first.
QPushButton* addColorDisplay(QHBoxLayout* row, QWidget* parent);
/// Puts a label and the line of one component side by side, at their height and at the end of the row. Name and spacing
/// are left to the editor.
QHBoxLayout* addColorRow(QHBoxLayout* row, QLabel* label, QLineEdit* line);

/// A component from 0 to 1 as one from 0 to 255, without its fraction: 0.5 is 127. A component beyond an int, or no
/// number, gives a value that no colour has.
[[nodiscard]] int shownComponent(float component);
/// The same for a component that is scaled already.
[[nodiscard]] int wholeComponent(double component);
/// Fills the button's icon with a colour; one that isn't valid leaves the icon as it is.
void showColor(QPushButton* display, const QColor& color);

} // namespace orvane
