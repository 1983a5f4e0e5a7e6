#pragma once

namespace orvane {

/// Has the widget with the focus take over what was typed into it and not confirmed yet, as it does when the focus
/// leaves it.
void commitPendingEdit();

} // namespace orvane
