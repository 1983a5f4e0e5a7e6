#pragma once

#include "meridane/scene/check/NxFileFinding.h"

/// What a check of a scene needs to know.
struct NxCheckOptions {
    /// The largest width and height of an image, in pixels, that every GPU takes.
    static constexpr int usualImageSide = 16384;

    /// So many lights, the first of those that shine on a mesh, are drawn.
    static constexpr int usualLights = 32;

    NxFileFinder findFile; ///< null: files aren't checked
    int maxImageSide = usualImageSide; ///< in pixels; a wider or higher image is a problem
    int maxLights = usualLights; ///< more lights that shine on a mesh are a problem
};
