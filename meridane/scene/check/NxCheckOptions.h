#pragma once

#include "meridane/scene/check/NxFileFinding.h"

/// What a check of a scene needs to know.
struct NxCheckOptions {
    /// The largest width and height of an image, in pixels, that every GPU takes.
    static constexpr int usualImageSide = 16384;

    NxFileFinder findFile; ///< null: files aren't checked
    int maxImageSide = usualImageSide;
};
