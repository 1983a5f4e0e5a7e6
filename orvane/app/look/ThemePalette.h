#pragma once

#include <QPalette>

namespace orvane::look {

/// The tool's own palettes, for a user who chooses one and for desktops that have none. Each text has a contrast of 4.5
/// at least to the background that it belongs to, and of 3 where it is disabled. docs/look.md lists the figures.
[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

} // namespace orvane::look
