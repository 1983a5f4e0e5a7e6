#pragma once

#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/nodes/NxNode.h"

/// An image on the surfaces that follow in the group, placed by their texture coordinates.
class NxTexture : public NxNode {
    NX_NODE(NxTexture)

public:
    /// What a surface shows outside the image.
    enum Wrap {
        REPEAT = 0, ///< the image goes on over and over
        CLAMP = 1, ///< the border goes on
    };

    NxSFFilePathString filePath{this,
        {"filePath",
            "The file of the image, relative to the folder of the scene file; it is used when image is empty."}};
    NxSFImage image{this, {"image", "The image itself, with the row at the bottom first."}};
    NxSFEnum wrapS{this, {"wrapS", "What lies to the left and right of the image."}, wraps(), REPEAT};
    NxSFEnum wrapT{this, {"wrapT", "What lies below and above the image."}, wraps(), REPEAT};

protected:
    ~NxTexture() override = default;

private:
    static const NxEnumeration& wraps();
};
