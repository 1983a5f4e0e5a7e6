#pragma once

class QPixmap;

namespace orvane {

/// The icon of "Set to default", 16 by 16 pixels.
[[nodiscard]] QPixmap setDefaultIcon();
/// The icon of "Ignore this field", 16 by 16 pixels.
[[nodiscard]] QPixmap ignoreIcon();

} // namespace orvane
