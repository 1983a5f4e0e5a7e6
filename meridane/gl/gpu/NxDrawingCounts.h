#pragma once

#include <cstdint>

/// What drawing has cost: the first part since the drawing was made, the second in the latest picture, the third now.
struct NxDrawingCounts {
    std::uint64_t meshUploads = 0; ///< meshes, or parts of them, that went to the card
    std::uint64_t uploadedBytes = 0; ///< of vertices and indices
    std::uint64_t textureUploads = 0;
    std::uint64_t pictures = 0;

    std::uint64_t drawCalls = 0;
    std::uint64_t drawnCorners = 0; ///< of the primitives of meshes
    std::uint64_t drawnItems = 0; ///< places of meshes that were in view
    std::uint64_t culledItems = 0; ///< places of meshes that were not

    std::uint64_t bufferBytes = 0; ///< of vertices and indices on the card
    std::uint64_t textureBytes = 0; ///< of images on the card
    std::uint64_t ownBytes = 0; ///< about what the drawing keeps in memory for the scene
};
