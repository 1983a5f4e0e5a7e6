#pragma once

#include "meridane/gl/gpu/detail/GLProgram.h"

#include <array>

namespace meridane {

/// What a mesh is drawn with.
struct SurfaceVariant {
    enum Light : unsigned int {
        Unlit, ///< lines and points without normals
        Smooth, ///< surfaces by the normals of their corners
        Flat, ///< surfaces by their own normals
        Line, ///< lines and points by the normals of their corners
    };
    static constexpr unsigned int count = 16;

    Light light = Unlit;
    bool isTextured = false;
    bool hasColors = false;

    [[nodiscard]] unsigned int number() const noexcept
    {
        return static_cast<unsigned int>(light) * 4 + (isTextured ? 2U : 0U) + (hasColors ? 1U : 0U);
    }
};

/// A program for a variant and the places of its variables.
struct SurfaceProgram {
    GLProgram program;
    int origin = -1; ///< vec3: `MeshShape::origin`
    int modelMatrix = -1; ///< mat4, from the mesh, relative to its origin, to the scene, relative to the eye
    int normalMatrix = -1; ///< mat3
    int eyeToClip = -1; ///< mat4
    int eye = -1; ///< vec4, as in `PictureFrame`
    int material = -1; ///< vec4[4], as `MaterialValues`
    int pointSize = -1;
};

/// The places of the corners' values, in the order of the lists of a mesh; the indices come behind them.
enum class Attribute : unsigned int { Position, Normal, Coordinate, Color };
inline constexpr std::size_t attributes = 4;

/// The block of uniforms with the lights: their number, then `LightValues` of each.
inline constexpr unsigned int lightsBinding = 0;

[[nodiscard]] SurfaceProgram makeSurfaceProgram(const NxGLFunctions& gl, SurfaceVariant variant);

} // namespace meridane
