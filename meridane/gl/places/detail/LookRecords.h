#pragma once

#include "meridane/base/values/VbColor.h"
#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <array>
#include <bit>
#include <cstddef>

namespace meridane {

/// A material as the shaders take it: five vectors of four floats. Colours go from 0 to 1.
struct MaterialValues {
    VbColor diffuse;
    float opacity = 1; ///< from 0 to 1
    VbColor ambient;
    float unused1 = 0;
    VbColor specular;
    float exponent = 1; ///< of the highlight, from 1 to 128
    VbColor emissive;
    float unused2 = 0;
    float metalness = 0; ///< from 0 to 1
    float roughness = 1; ///< from 0 to 1
    float alphaCutoff = 0; ///< from 0 to 1; 0 for none
    float isDoubleSided = 1; ///< 0 or 1; not for the shaders

    /// Whether highlights follow from metalness and roughness.
    [[nodiscard]] bool isPhysical() const noexcept { return metalness > 0 || roughness < 1; }
};
static_assert(sizeof(MaterialValues) == 80);
static_assert(offsetof(MaterialValues, opacity) == 12 && offsetof(MaterialValues, ambient) == 16);
static_assert(offsetof(MaterialValues, specular) == 32 && offsetof(MaterialValues, exponent) == 44);
static_assert(offsetof(MaterialValues, emissive) == 48 && offsetof(MaterialValues, metalness) == 64);

/// The values of the effective fields, limited to their ranges. A null pointer gives those of a new material.
[[nodiscard]] MaterialValues materialValues(const NxMaterial* material);
/// The values in a row, as OpenGL takes them.
[[nodiscard]] inline std::array<float, 20> asFloats(const MaterialValues& values) noexcept
{
    return std::bit_cast<std::array<float, 20>>(values);
}

class MaterialRecord : public NodeRecord {
public:
    MaterialRecord(NxMaterial& material, NodeRecordListener& listener)
        : NodeRecord(material, NodeKind::Material, listener)
        , values(materialValues(&material))
    {
    }
    void update() { values = materialValues(static_cast<const NxMaterial*>(node())); }

    MaterialValues values;
};

/// How much detail is drawn.
struct ComplexityValues {
    int type = NxComplexity::OBJECT_SPACE;
    float value = 0.5F;
    float textureQuality = 0.5F;
};
[[nodiscard]] ComplexityValues complexityValues(const NxComplexity& complexity);

class ComplexityRecord : public NodeRecord {
public:
    ComplexityRecord(NxComplexity& complexity, NodeRecordListener& listener)
        : NodeRecord(complexity, NodeKind::Complexity, listener)
        , values(complexityValues(complexity))
    {
    }
    void update() { values = complexityValues(*static_cast<const NxComplexity*>(node())); }

    ComplexityValues values;
};

/// `TextureStore` uploads the image and keeps these values up to date.
class TextureRecord : public NodeRecord {
public:
    TextureRecord(NxTexture& texture, NodeRecordListener& listener)
        : NodeRecord(texture, NodeKind::Texture, listener)
    {
    }
    [[nodiscard]] const NxTexture* texture() const noexcept { return static_cast<const NxTexture*>(node()); }

    /// The OpenGL name of the image; 0 for none.
    unsigned int name = 0;
    /// The role when the places were filled; another one changes which looks use the texture.
    NxTexture::Role role = NxTexture::COLOR;
    std::size_t bytes = 0;
    std::uint64_t fingerprint = 0;
    bool isStale = true;
    bool isTranslucent = false;
    bool repeatsS = true;
    bool repeatsT = true;
};

} // namespace meridane
