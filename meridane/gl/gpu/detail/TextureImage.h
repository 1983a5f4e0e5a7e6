#pragma once

#include "meridane/gl/gpu/NxImage.h"

class NxTexture;

namespace meridane {

class Problems;
class TextureRecord;

/// An image ready for the GPU. The bytes belong to the texture's field or to `loaded`.
struct TextureImage {
    int width = 0; ///< 0 for no image
    int height = 0;
    int components = 0;
    const unsigned char* bytes = nullptr;
    NxImage loaded;
    bool isPending = false; ///< it is being loaded

    /// Whether some pixel isn't opaque.
    [[nodiscard]] bool isTranslucent() const;
};

/// The image of a texture's field, or else of its file, reduced if it is wider or higher than `maxSide` pixels. Reports
/// problems with it.
[[nodiscard]] TextureImage imageOf(TextureRecord& record, const NxImageLoader& loader, int maxSide, Problems& problems);

} // namespace meridane
