#pragma once

class QFrame;
class QLineEdit;
class QWidget;

// The popup with a grid of lines, which a button opens for a value of many numbers.
namespace orvane {

/// Makes a hidden popup with an empty grid as its layout; the parent owns it. A click on the button while it is open
/// closes it, and doesn't open it again.
[[nodiscard]] QFrame* makePopupGrid(QWidget* parent, const QWidget* button);

/// Gives a line a validator of its own. `kind` is the number of a `ValidatorKind`; `None` removes the validator, and
/// any other number does nothing.
void setLineValidator(QLineEdit* line, int kind);

} // namespace orvane
