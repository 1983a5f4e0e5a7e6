#pragma once

#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>

/// An image on the surfaces that follow in the group, placed by their texture coordinates.
class NxTexture : public NxNode {
    NX_NODE(NxTexture)

public:
    /// What a surface shows outside the image.
    enum Wrap {
        REPEAT = 0, ///< the image goes on over and over
        CLAMP = 1, ///< the border goes on
    };
    /// What the image changes. Of each role, the last texture applies.
    enum Role {
        COLOR = 0, ///< the colour and the opacity of the surface
        NORMAL = 1, ///< red, green and blue from 0 to 1 are a normal from -1 to 1: rightwards and upwards in the image,
                    ///< outwards
        METAL_ROUGHNESS = 2, ///< blue is multiplied with the metalness of the material, green with its roughness
    };
    /// The number of roles; their values are below it.
    static constexpr std::size_t roleCount = 3;

    NxSFFilePathString filePath{this,
        {"filePath",
            "The file of the image, relative to the folder of the scene file; it is used when image is empty."}};
    NxSFImage image{this, {"image", "The image itself, with the row at the bottom first."}};
    NxSFEnum wrapS{this, {"wrapS", "What lies to the left and right of the image."}, wraps(), REPEAT};
    NxSFEnum wrapT{this, {"wrapT", "What lies below and above the image."}, wraps(), REPEAT};
    NxSFEnum role{this,
        {"role", "What the image changes: the colour, the normals, or metalness (blue) and roughness (green)."},
        roles(), COLOR};

    /// The effective role; a number without a meaning counts as `COLOR`.
    [[nodiscard]] Role effectiveRole() const;

protected:
    ~NxTexture() override = default;

private:
    static const NxEnumeration& wraps();
    static const NxEnumeration& roles();
};
