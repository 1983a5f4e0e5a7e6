#include "meridane/gl/gpu/detail/TextureStore.h"

#include "meridane/base/ContentHash.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/gpu/detail/TextureImage.h"
#include "meridane/scene/fields/EffectiveField.h"

#include <algorithm>
#include <span>
#include <utility>

namespace meridane {
namespace {

// Part of OpenGL since version 4.6, but nearly every driver of 3.3 has it as an extension.
constexpr GLenum anisotropy = 0x84FE;
constexpr GLenum maxAnisotropyName = 0x84FF;

struct Format {
    GLint internal;
    GLenum ofBytes;
};

Format formatOf(int components)
{
    switch (components) {
    case 1:
        return {GL_R8, GL_RED};
    case 2:
        return {GL_RG8, GL_RG};
    case 3:
        return {GL_RGB8, GL_RGB};
    default:
        return {GL_RGBA8, GL_RGBA};
    }
}

std::uint64_t fingerprintOf(const TextureImage& image)
{
    const std::array<std::uint64_t, 4> parts{static_cast<std::uint64_t>(image.width),
        static_cast<std::uint64_t>(image.height), static_cast<std::uint64_t>(image.components),
        meridane::shortHashOf(std::as_bytes(std::span(image.bytes,
            static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height)
                * static_cast<std::size_t>(image.components))))};
    return meridane::shortHashOf(std::as_bytes(std::span(parts)));
}

/// From nearest pixels to all kinds of smoothing.
std::size_t levelOf(float quality)
{
    constexpr std::array<float, 3> bounds{0.25F, 0.5F, 1.0F};
    std::size_t level = 0;
    while (level < bounds.size() && quality >= bounds[level])
        ++level;
    return level;
}

} // namespace

TextureStore::~TextureStore()
{
    clean();
    m_gl.DeleteSamplers(static_cast<GLsizei>(m_samplers.size()), m_samplers.data());
}

void TextureStore::update(
    TextureRecord& texture, const NxImageLoader& loader, Problems& problems, NxDrawingCounts& counts)
{
    if (!texture.isStale || texture.texture() == nullptr)
        return;
    texture.isStale = false;
    if (m_maxSide == 0)
        m_gl.GetIntegerv(GL_MAX_TEXTURE_SIZE, &m_maxSide);
    texture.repeatsS = effectiveField(texture.texture()->wrapS).getValue() != NxTexture::CLAMP;
    texture.repeatsT = effectiveField(texture.texture()->wrapT).getValue() != NxTexture::CLAMP;
    const TextureImage image = imageOf(texture, loader, m_maxSide, problems);
    if (image.isPending)
        return;
    const std::uint64_t fingerprint = image.width == 0 ? 0 : fingerprintOf(image);
    if (fingerprint == texture.fingerprint)
        return;
    release(texture);
    clean();
    texture.fingerprint = fingerprint;
    if (image.width == 0)
        return;
    upload(texture, image);
    ++counts.textureUploads;
}

void TextureStore::upload(TextureRecord& texture, const TextureImage& image)
{
    const Format format = formatOf(image.components);
    m_errors.report("Drawing the scene"); // so that later errors are those of this upload
    m_gl.GenTextures(1, &texture.name);
    m_gl.BindTexture(GL_TEXTURE_2D, texture.name);
    {
        GLStateScope rows(m_gl);
        rows.setUnpackAlignment(1);
        m_gl.TexImage2D(GL_TEXTURE_2D, 0, format.internal, image.width, image.height, 0, format.ofBytes,
            GL_UNSIGNED_BYTE, image.bytes);
    }
    if (image.components < 3) {
        for (const int part : {GL_TEXTURE_SWIZZLE_R, GL_TEXTURE_SWIZZLE_G, GL_TEXTURE_SWIZZLE_B})
            m_gl.TexParameteri(GL_TEXTURE_2D, static_cast<GLenum>(part), GL_RED);
        m_gl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_A, image.components == 2 ? GL_GREEN : GL_ONE);
    }
    m_gl.GenerateMipmap(GL_TEXTURE_2D);
    if (m_errors.report("Making the image of a texture")) {
        release(texture);
        clean();
        return;
    }
    texture.isTranslucent = image.isTranslucent();
    texture.bytes = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height)
        * static_cast<std::size_t>(image.components);
    m_bytes += texture.bytes;
}

void TextureStore::release(TextureRecord& texture)
{
    if (texture.name != 0)
        m_garbage.push_back(std::exchange(texture.name, 0));
    m_bytes -= std::exchange(texture.bytes, 0);
    texture.fingerprint = 0;
}

void TextureStore::clean()
{
    if (m_garbage.empty())
        return;
    m_gl.DeleteTextures(static_cast<GLsizei>(m_garbage.size()), m_garbage.data());
    m_garbage.clear();
}

void TextureStore::forget()
{
    m_garbage.clear();
    m_samplers.fill(0);
    m_bytes = 0;
    m_maxAnisotropy = 0;
    m_maxSide = 0;
}

void TextureStore::bind(const TextureRecord& texture, float quality, unsigned int unit)
{
    if (unit != 0)
        m_gl.ActiveTexture(GL_TEXTURE0 + unit);
    m_gl.BindTexture(GL_TEXTURE_2D, texture.name);
    if (unit != 0)
        m_gl.ActiveTexture(GL_TEXTURE0);
    m_gl.BindSampler(unit, sampler(texture.repeatsS, texture.repeatsT, levelOf(quality)));
}

unsigned int TextureStore::sampler(bool repeatsS, bool repeatsT, std::size_t quality)
{
    unsigned int& name = m_samplers[4 * quality + (repeatsS ? 2U : 0U) + (repeatsT ? 1U : 0U)];
    if (name != 0)
        return name;
    constexpr std::array<GLint, qualities> smaller{
        GL_NEAREST, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR, GL_LINEAR_MIPMAP_LINEAR};
    m_gl.GenSamplers(1, &name);
    m_gl.SamplerParameteri(name, GL_TEXTURE_WRAP_S, repeatsS ? GL_REPEAT : GL_CLAMP_TO_EDGE);
    m_gl.SamplerParameteri(name, GL_TEXTURE_WRAP_T, repeatsT ? GL_REPEAT : GL_CLAMP_TO_EDGE);
    m_gl.SamplerParameteri(name, GL_TEXTURE_MIN_FILTER, smaller[quality]);
    m_gl.SamplerParameteri(name, GL_TEXTURE_MAG_FILTER, quality == 0 ? GL_NEAREST : GL_LINEAR);
    if (quality + 1 < qualities)
        return name;
    if (m_maxAnisotropy <= 0) {
        m_maxAnisotropy = 1;
        m_gl.GetFloatv(maxAnisotropyName, &m_maxAnisotropy);
        if (m_gl.GetError() != GL_NO_ERROR) // a driver without it
            m_maxAnisotropy = 1;
    }
    constexpr float enough = 8;
    if (m_maxAnisotropy > 1)
        m_gl.SamplerParameterf(name, anisotropy, std::min(m_maxAnisotropy, enough));
    return name;
}

} // namespace meridane
