#pragma once

class QLabel;
class QString;
class QWidget;

namespace orvane {

/// Fills the view with a message: why there is no picture. The label is a child of the view.
[[nodiscard]] QLabel* addViewMessage(QWidget* view, const QString& text);

} // namespace orvane
