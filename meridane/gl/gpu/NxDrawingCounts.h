#pragma once

#include <cstdint>

/// The cost of drawing: the first part since the drawing was made, the second of the last picture, the third at
/// present.
struct NxDrawingCounts {
    std::uint64_t meshUploads = 0; ///< uploads of meshes or parts of them
    std::uint64_t uploadedBytes = 0; ///< of vertices and indices
    std::uint64_t textureUploads = 0; ///< uploads of images
    std::uint64_t pictures = 0; ///< pictures drawn

    std::uint64_t drawCalls = 0; ///< calls of OpenGL that draw
    std::uint64_t drawnCorners = 0; ///< of the primitives of meshes
    std::uint64_t drawnTriangles = 0; ///< of meshes, reduced ones as they were drawn
    std::uint64_t fullCorners = 0; ///< of the primitives of the meshes in view, if none were reduced
    std::uint64_t drawnItems = 0; ///< instances of meshes in view
    std::uint64_t culledItems = 0; ///< instances of meshes out of view
    double uploadMilliseconds = 0; ///< that uploads of meshes took, which the next pictures don't need again

    std::uint64_t nodes = 0; ///< of the scene, each once wherever it is used
    std::uint64_t bufferBytes = 0; ///< of vertices and indices on the GPU
    std::uint64_t textureBytes = 0; ///< of images on the GPU
    std::uint64_t ownBytes = 0; ///< roughly, of the drawing's own memory for the scene
};
