#pragma once

class QWidget;

namespace orvane {

/// Gives a control that can have the focus a name for screen readers, where neither its text nor its maker does: from
/// its tool tip, its placeholder, its label, or what it belongs to. The name follows the tool tip. Other widgets stay
/// as they are.
void nameControl(QWidget& widget);

} // namespace orvane
