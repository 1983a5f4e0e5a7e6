#pragma once

#include <QString>

class QAction;

namespace orvane {

/// Enables an action if `reason` is empty. Otherwise disables it, and its tool tip gives the reason why it can't be
/// used. For actions without a tool tip of their own.
void setReason(QAction& action, const QString& reason);
/// Why an action can't be used; empty if it can, or if nobody has given a reason.
[[nodiscard]] QString reasonOf(const QAction& action);
/// The text of an action as it is read: without marks for keys and dots.
[[nodiscard]] QString plainText(const QAction& action);

} // namespace orvane
