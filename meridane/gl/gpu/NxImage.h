#pragma once

#include <functional>
#include <string>
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

/// Loads the image file that a texture names; how the path is resolved is the loader's affair. Sets `reason`, in half a
/// sentence, when it fails. It is called while a picture is drawn, so it must not wait for anything: an image that
/// takes time is pending.
using NxImageLoader = std::function<NxImageState(const std::string& path, NxImage& image, std::string& reason)>;
