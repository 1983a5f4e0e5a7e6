#pragma once

class NxViewpoint;
class QLinearGradient;
class QPalette;
struct NxDrawingStyle;

namespace orvane {

/// What is behind the scene.
enum class ViewBackground { AsWindow, Light, Dark };

/// Gives the style the background, and the grid and outlines that are seen on it. As the window, it suits the colours
/// of the other widgets.
void setViewColors(NxDrawingStyle& style, const QPalette& palette, ViewBackground background);

/// The background of a view of that height, for while there is no picture.
[[nodiscard]] QLinearGradient viewBackground(const NxDrawingStyle& style, int height);

/// How a scene is looked at first: in perspective from the right, from above and from the front, the sides that show
/// most of a model.
[[nodiscard]] NxViewpoint firstViewpoint();

} // namespace orvane
