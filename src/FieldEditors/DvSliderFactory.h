#pragma once

class OrvFieldEditors;
class QFrame;
class QWidget;

/// Makes the slider of a numeric single-value editor, in field editor mode and as a child of `parent`. The kinds are 1
/// float, 2 double, 3 32-bit, 4 unsigned 32-bit, 5 16-bit and 6 unsigned 16-bit; the result is null for any other. The
/// slider reports to `owner`.
[[nodiscard]] QFrame* makeSlider(int kind, OrvFieldEditors* owner, QWidget* parent);
