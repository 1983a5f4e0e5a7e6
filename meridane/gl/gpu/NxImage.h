#pragma once

#include <vector>

/// What becomes of an image file that a texture names.
enum class NxImageState {
    Loaded, ///< the image is there
    Pending, ///< it is being loaded; `NxSceneDrawing::reloadImage` follows
    Withheld, ///< it isn't loaded, for a reason that whoever loads images reports
    Failed, ///< it can't be loaded
};

/// An image as an image loader hands it over: pixel by pixel and row by row, the bottom row first.
struct NxImage {
    int width = 0;
    int height = 0;
    /// The bytes of a pixel: 1 grey, 2 grey and opacity, 3 red, green and blue, 4 those and opacity.
    int components = 0;
    /// `width * height * components` bytes.
    std::vector<unsigned char> bytes;
};
