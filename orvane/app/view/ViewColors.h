#pragma once

class QPalette;
struct NxDrawingStyle;

namespace orvane {

/// Gives the style the background, grid and outline that suit the colours of the other widgets, light or dark.
void setViewColors(NxDrawingStyle& style, const QPalette& palette);

} // namespace orvane
