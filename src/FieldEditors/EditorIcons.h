#pragma once

class QPixmap;

namespace orvane {

/// The icon of "Set to default", 16 by 16 pixels.
[[nodiscard]] QPixmap setDefaultIcon();
/// The icon of "Ignore this field", 16 by 16 pixels.
[[nodiscard]] QPixmap ignoreIcon();
/// The icon of the button that opens the numbers of a value, 16 by 16 pixels.
[[nodiscard]] QPixmap editIcon();
/// The icon of "Add a row", 16 by 16 pixels.
[[nodiscard]] QPixmap addRowIcon();
/// The icon of "Delete current row", 16 by 16 pixels.
[[nodiscard]] QPixmap deleteRowIcon();
/// The icon of "Bring up current row", 16 by 16 pixels.
[[nodiscard]] QPixmap moveUpIcon();
/// The icon of "Bring down current row", 16 by 16 pixels.
[[nodiscard]] QPixmap moveDownIcon();

} // namespace orvane
