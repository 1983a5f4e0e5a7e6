#pragma once

#include <QString>

class QWidget;

namespace orvane {

/// The page of the help about the part of the window that a widget is in, or the list of contents.
[[nodiscard]] QString helpTopicOf(const QWidget* widget);

} // namespace orvane
