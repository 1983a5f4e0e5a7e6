#pragma once

#include <QIcon>

/// The icons of this room, in the colour of the text.
namespace orvane {

[[nodiscard]] QIcon openPadlock();
[[nodiscard]] QIcon closedPadlock();
/// An arrow to the left, and one to the right.
[[nodiscard]] QIcon backArrow();
[[nodiscard]] QIcon forwardArrow();

/// A star for favorites.
[[nodiscard]] QIcon starIcon();

} // namespace orvane
