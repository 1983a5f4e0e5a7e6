#pragma once

#include <functional>

class QWidget;

namespace orv {

/// Calls `setTexts` now, and whenever the language of the widget changes, as long as it exists.
void setWidgetTexts(QWidget& widget, std::function<void()> setTexts);

} // namespace orv
