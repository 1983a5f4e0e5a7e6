#pragma once

#include "orvane/sdk/NodeEditor.h"

#include "meridane/scene/nodes/NxTexture.h"

namespace nodes {

class TexturePicture;

/// The picture of a texture, its size and channels, and its fields.
class TextureEditor final : public orv::NodeEditor<NxTexture> {
    void build() override;
    static void showPicture(TexturePicture& picture, const NxTexture& texture);
};

} // namespace nodes
