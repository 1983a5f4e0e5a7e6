#pragma once

class QPixmap;

namespace orvane {

/// The icon of "Set to default", 16 by 16 pixels.
[[nodiscard]] QPixmap setDefaultIcon();
/// The icon of "Ignore this field", 16 by 16 pixels.
[[nodiscard]] QPixmap ignoreIcon();
/// The icon of the button that opens the numbers of a value, 16 by 16 pixels.
[[nodiscard]] QPixmap editIcon();

} // namespace orvane
