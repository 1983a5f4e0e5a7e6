#pragma once

#include <functional>
#include <string>
#include <vector>

/// \file
/// Images, and how the drawing gets those of files.

/// The result of a request for an image file.
enum class NxImageState {
    Loaded, ///< the image was set
    Pending, ///< it is being loaded; `NxSceneDrawing::reloadImage` follows
    Withheld, ///< it isn't loaded; the loader reports why
    Failed, ///< it can't be loaded
};

/// An image from an image loader: pixel by pixel and row by row, the bottom row first.
struct NxImage {
    int width = 0; ///< in pixels
    int height = 0; ///< in pixels
    /// The number of bytes of a pixel: 1 grey, 2 grey and opacity, 3 red, green and blue, 4 those and opacity.
    int components = 0;
    /// `width * height * components` bytes.
    std::vector<unsigned char> bytes;
};

/// Loads the image file of a texture. The loader decides how a path is resolved. If it fails, it sets `reason` to half
/// a sentence. It is called while a picture is drawn and must not wait: an image that takes time is pending.
using NxImageLoader = std::function<NxImageState(const std::string& path, NxImage& image, std::string& reason)>;
