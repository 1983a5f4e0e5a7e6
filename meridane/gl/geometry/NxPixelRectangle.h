#pragma once

/// A part of a picture, in device pixels from its lower left corner.
struct NxPixelRectangle {
    int left = 0; ///< from the left border of the picture
    int bottom = 0; ///< from its lower border
    int width = 0; ///< in device pixels
    int height = 0; ///< in device pixels
};
