#pragma once

#include <assimp/types.h>

namespace orvane {

/// Which texture coordinates of a mesh a texture uses, and what they become in the scene: across is
/// (u, v, 1) times `across`, upwards the same times `upwards`.
struct TextureMapping {
    unsigned int channel = 0;
    aiVector3D across{1, 0, 0};
    aiVector3D upwards{0, 1, 0};

    /// Whether both place a texture alike, but for rounding.
    [[nodiscard]] bool isLike(const TextureMapping& other) const
    {
        constexpr float rounding = 1e-5F;
        return channel == other.channel && across.Equal(other.across, rounding)
            && upwards.Equal(other.upwards, rounding);
    }
};

} // namespace orvane
