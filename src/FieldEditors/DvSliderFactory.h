#pragma once

class OrvFieldEditors;
class QFrame;
class QWidget;

/// Makes the slider of a numeric single-value editor, in field editor mode and as a child of `parent`. `kind` is the
/// number of an `orvane::SliderKind`; any other gives null. The slider reports to `owner`.
[[nodiscard]] QFrame* makeSlider(int kind, OrvFieldEditors* owner, QWidget* parent);
