#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbVec.h"

#include <array>

class NxViewpoint;
struct NxBounds;

namespace meridane {

/// The parameters of a picture that all painters share.
struct PictureFrame {
    /// The position of the eye. Everything is drawn relative to it, along the axes of the scene, so that floats are
    /// exact enough everywhere in the scene.
    VbVec3d position;
    /// From points relative to the eye to OpenGL's clip space.
    VbMatrix eyeToClip;
    /// In perspective the origin, where the eye is, and 1; else the direction to the eye and 0.
    std::array<float, 4> eye{};
    /// The line of sight.
    VbVec3f direction;
    /// The size of one scene unit in device pixels, at a distance of 1 in perspective, else at any distance.
    float pixelsPerUnit = 1;
    int width = 0;
    int height = 0;
    float scale = 1;

    /// For a picture that shows everything in the box.
    PictureFrame(
        const NxViewpoint& viewpoint, const NxBounds& shown, int pictureWidth, int pictureHeight, float pixelsPerPoint);
    PictureFrame() = default;

    /// The section as the shaders take it: see `SurfaceProgram::section`.
    [[nodiscard]] std::array<float, 4> sectionFor(const VbVec3f& normal, double place) const noexcept;
    /// The distance of a point along the line of sight.
    [[nodiscard]] double depthOf(const VbVec3d& point) const noexcept;
};

} // namespace meridane
