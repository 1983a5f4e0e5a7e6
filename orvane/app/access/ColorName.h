#pragma once

#include <QString>

class QColor;

namespace orvane {

/// What people call a colour, such as "dark red" or "light grey", for those who can't see it. The opacity isn't said.
[[nodiscard]] QString colorName(const QColor& color);

} // namespace orvane
