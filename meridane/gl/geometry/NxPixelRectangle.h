#pragma once

/// A part of a picture, in device pixels from its lower left corner.
struct NxPixelRectangle {
    int left = 0;
    int bottom = 0;
    int width = 0;
    int height = 0;
};
