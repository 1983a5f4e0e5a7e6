#pragma once

#include <Qt>

namespace orvane {

/// Whether a widget loses or gets the focus only for a while, to a menu or to another window, so that what is being
/// typed into it goes on being typed.
[[nodiscard]] constexpr bool isPassingFocus(Qt::FocusReason reason) noexcept
{
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace orvane
