#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbVec.h"

#include <array>

class NxViewpoint;
struct NxBounds;

namespace meridane {

/// What the parts of a picture need to know about it.
struct PictureFrame {
    /// Where the eye is. Everything is drawn relative to it, along the axes of the scene, so that floats are exact
    /// enough wherever in the scene it is.
    VbVec3d position;
    /// From points relative to the eye to the cube that OpenGL clips at.
    VbMatrix eyeToClip;
    /// The origin, where the eye is, and 1; or the direction to it and 0.
    std::array<float, 4> eye{};
    /// The line of sight.
    VbVec3f direction;
    /// Device pixels that a length of 1 covers at a distance of 1; at any distance in an orthographic picture.
    float pixelsPerUnit = 1;
    int width = 0;
    int height = 0;
    float scale = 1;

    /// Of a picture that shows all that lies in the box.
    PictureFrame(
        const NxViewpoint& viewpoint, const NxBounds& shown, int pictureWidth, int pictureHeight, float pixelsPerPoint);
    PictureFrame() = default;

    /// How far away a point is along the line of sight.
    [[nodiscard]] double depthOf(const VbVec3d& point) const noexcept;
};

} // namespace meridane
