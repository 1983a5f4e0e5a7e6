#pragma once

#include <QIcon>

#include <functional>

class QPainter;

namespace orvane {

/// Draws an icon on a square of 16 units. Only the modes `Selected` and `Disabled` may look different from `Normal`.
using DrawIcon = std::function<void(QPainter& painter, QIcon::Mode mode)>;

/// An icon that is drawn when it is needed, once in each size and mode, and again when the palette of the application
/// has changed. It takes its colours from that palette as it draws.
[[nodiscard]] QIcon drawnIcon(DrawIcon draw);

} // namespace orvane
