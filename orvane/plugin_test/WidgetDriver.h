#pragma once

#include <functional>

class QWidget;

/// Which controls are used.
enum class Controls {
    All,
    Values, ///< without buttons, which may take back what another control did
};

/// Uses every control below the widget once, as a user might: a step up with a key, a digit and Return, a click. Calls
/// `used` after each. A modal dialog that opens is closed again. Leaves out controls that are disabled or hidden.
void driveControls(QWidget& widget, Controls which, const std::function<void()>& used);
