#pragma once

#include <vector>

/// An image as an image loader hands it over: pixel by pixel and row by row, the bottom row first.
struct NxImage {
    int width = 0;
    int height = 0;
    /// The bytes of a pixel: 1 grey, 2 grey and opacity, 3 red, green and blue, 4 those and opacity.
    int components = 0;
    /// `width * height * components` bytes.
    std::vector<unsigned char> bytes;
};
