#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <array>

namespace meridane {

/// A material as the shaders take it: diffuse colour and opacity, ambient colour, specular colour and exponent,
/// emissive colour.
using MaterialValues = std::array<float, 16>;
/// Of the fields that count, each held to its range; null gives a new material's.
[[nodiscard]] MaterialValues materialValues(const NxMaterial* material);

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

/// How finely things are drawn.
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

/// The card's image of a texture is a matter of `TextureStore`.
class TextureRecord : public NodeRecord {
public:
    TextureRecord(NxTexture& texture, NodeRecordListener& listener)
        : NodeRecord(texture, NodeKind::Texture, listener)
    {
    }
    [[nodiscard]] const NxTexture* texture() const noexcept { return static_cast<const NxTexture*>(node()); }

    /// OpenGL's name of the image; 0 for none.
    unsigned int name = 0;
    std::size_t bytes = 0;
    std::uint64_t fingerprint = 0;
    bool isStale = true;
    bool isTranslucent = false;
    bool repeatsS = true;
    bool repeatsT = true;
};

} // namespace meridane
