#pragma once

class NxViewpoint;
class QLinearGradient;
class QPalette;
struct NxDrawingStyle;

namespace orvane {

/// Gives the style the background, grid and outline that suit the colours of the other widgets, light or dark.
void setViewColors(NxDrawingStyle& style, const QPalette& palette);

/// The background of a view of that height, for while there is no picture.
[[nodiscard]] QLinearGradient viewBackground(const NxDrawingStyle& style, int height);

/// How a scene is looked at first: in perspective from the right, from above and from the front, the sides that show
/// most of a model.
[[nodiscard]] NxViewpoint firstViewpoint();

} // namespace orvane
