#include "meridane/gl/places/detail/LookRecords.h"

#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/fields/NxRef.h"

#include <algorithm>

namespace meridane {
namespace {

/// The exponent of the sharpest highlight.
constexpr float maxExponent = 128;

float fraction(float value, float otherwise = 0)
{
    return value >= 0 ? std::min(value, 1.0F) : value < 0 ? 0 : otherwise; // otherwise for a NaN
}

VbColor usableColor(const NxSFColor& field)
{
    const VbColor& color = effectiveField(field).getValue();
    return {fraction(color[0]), fraction(color[1]), fraction(color[2])};
}

} // namespace

MaterialValues materialValues(const NxMaterial* material)
{
    if (material == nullptr) {
        static const MaterialValues defaults = materialValues(NxRef<NxMaterial>(new NxMaterial).get());
        return defaults;
    }
    MaterialValues values;
    values.diffuse = usableColor(material->diffuseColor);
    values.opacity = 1 - fraction(effectiveField(material->transparency).getValue());
    values.ambient = usableColor(material->ambientColor);
    values.specular = usableColor(material->specularColor);
    values.exponent = std::max(fraction(effectiveField(material->shininess).getValue()) * maxExponent, 1.0F);
    values.emissive = usableColor(material->emissiveColor);
    values.metalness = fraction(effectiveField(material->metalness).getValue());
    values.roughness = fraction(effectiveField(material->roughness).getValue(), 1);
    values.alphaCutoff = fraction(effectiveField(material->alphaCutoff).getValue());
    values.isDoubleSided = effectiveField(material->doubleSided).getValue() != 0 ? 1 : 0;
    return values;
}

ComplexityValues complexityValues(const NxComplexity& complexity)
{
    constexpr float usual = 0.5F;
    return {effectiveField(complexity.type).getValue(), fraction(effectiveField(complexity.value).getValue(), usual),
        fraction(effectiveField(complexity.textureQuality).getValue(), usual)};
}

} // namespace meridane
