#pragma once

#include "meridane/gl/gpu/detail/GLProgram.h"

#include <array>
#include <cstdint>

namespace meridane {

/// The kind of shaders that draw a mesh.
struct SurfaceVariant {
    enum Light : unsigned int {
        Unlit, ///< lines and points without normals
        Smooth, ///< surfaces by the normals of their corners
        Flat, ///< surfaces by their own normals
        Line, ///< lines and points by the normals of their corners
    };
    static constexpr unsigned int count = 256;

    Light light = Unlit;
    bool isTextured = false;
    bool hasColors = false;
    bool isPhysical = false; ///< highlights by metalness and roughness
    bool hasNormalMap = false;
    bool hasSurfaceMap = false; ///< a texture of metalness and roughness; physical surfaces only
    bool isCutOut = false; ///< what is less opaque than the cut-off isn't drawn

    [[nodiscard]] unsigned int number() const noexcept
    {
        return (isCutOut ? 128U : 0U) + (hasSurfaceMap ? 64U : 0U) + (hasNormalMap ? 32U : 0U) + (isPhysical ? 16U : 0U)
            + static_cast<unsigned int>(light) * 4 + (isTextured ? 2U : 0U) + (hasColors ? 1U : 0U);
    }
};

/// What the colours of a mesh show.
enum class SurfaceColors : std::uint8_t {
    Material, ///< those of the material, in the light
    Normals, ///< the normals
    Coordinates, ///< the texture coordinates; of meshes that are textured by their variant
    Own, ///< the colours of the mesh
};

/// The program of a variant, and the locations of its uniform variables.
struct SurfaceProgram {
    GLProgram program;
    int origin = -1; ///< vec3: `MeshShape::origin`
    int modelMatrix = -1; ///< mat4, from positions relative to `origin` to scene positions relative to the eye
    int normalMatrix = -1; ///< mat3
    int eyeToClip = -1; ///< mat4
    int eye = -1; ///< vec4, as in `PictureFrame`
    int material = -1; ///< vec4[5], as `MaterialValues`
    int pointSize = -1;
    int section
        = -1; ///< vec4, which a point (x, y, z, 1) relative to the eye is multiplied by; nothing below 0 is drawn
};

/// The locations of the vertex attributes, in the order of the lists of a mesh; the list of indices follows them.
enum class Attribute : unsigned int { Position, Normal, Coordinate, Color };
inline constexpr std::size_t attributes = 4;

/// The binding point of the uniform block with the lights (`LightsBlock`).
inline constexpr unsigned int lightsBinding = 0;

/// A program with a section clips by the distances that it computes, which some drivers do although it is disabled.
[[nodiscard]] SurfaceProgram makeSurfaceProgram(const NxGLFunctions& gl, SurfaceVariant variant,
    SurfaceColors colors = SurfaceColors::Material, bool hasSection = false);

} // namespace meridane
