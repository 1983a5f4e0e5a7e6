#pragma once

#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/gpu/detail/GLErrors.h"
#include "meridane/gl/places/detail/LookRecords.h"

#include <array>
#include <vector>

namespace meridane {

class Problems;
struct TextureImage;

/// The textures on the GPU and their samplers.
class TextureStore {
public:
    TextureStore(const NxGLFunctions& gl, GLErrors& errors)
        : m_gl(gl)
        , m_errors(errors)
    {
    }
    TextureStore(const TextureStore&) = delete;
    TextureStore& operator=(const TextureStore&) = delete;
    /// The context must be current, or `forget` have been called.
    ~TextureStore();

    /// Uploads the texture if it changed.
    void update(TextureRecord& texture, const NxImageLoader& loader, Problems& problems, NxDrawingCounts& counts);
    /// Releases the image of a texture; the next `update` or `clean` deletes it. Needs no context.
    void release(TextureRecord& texture);
    void clean();
    /// Binds the texture to a unit, with a sampler of that quality, from 0 to 1.
    void bind(const TextureRecord& texture, float quality, unsigned int unit);
    /// To be called when the context is lost. All textures must be released before.
    void forget();

    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

private:
    static constexpr std::size_t qualities = 4;

    void upload(TextureRecord& texture, const TextureImage& image);
    unsigned int sampler(bool repeatsS, bool repeatsT, std::size_t quality);

    const NxGLFunctions& m_gl;
    GLErrors& m_errors;
    std::array<unsigned int, 4 * qualities> m_samplers{};
    std::vector<unsigned int> m_garbage;
    std::size_t m_bytes = 0;
    int m_maxSide = 0;
    float m_maxAnisotropy = 0; // 0 until it is queried
};

} // namespace meridane
