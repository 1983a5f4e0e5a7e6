#include "meridane/gl/places/detail/LookRecords.h"

#include "meridane/gl/places/detail/EffectiveField.h"
#include "meridane/scene/fields/NxRef.h"

#include <algorithm>
#include <cstddef>

namespace meridane {
namespace {

/// The exponent of the sharpest highlight.
constexpr float greatestExponent = 128;

float fraction(float value, float otherwise = 0)
{
    return value >= 0 ? std::min(value, 1.0F) : value < 0 ? 0 : otherwise; // otherwise for a NaN
}

void put(MaterialValues& values, std::size_t place, const NxSFColor& field, float fourth)
{
    const VbColor& color = effectiveField(field).getValue();
    for (std::size_t i = 0; i < 3; ++i)
        values[place + i] = fraction(color[i]);
    values[place + 3] = fourth;
}

} // namespace

MaterialValues materialValues(const NxMaterial* material)
{
    if (material == nullptr) {
        static const MaterialValues defaults = materialValues(NxRef<NxMaterial>(new NxMaterial).get());
        return defaults;
    }
    MaterialValues values{};
    put(values, 0, material->diffuseColor, 1 - fraction(effectiveField(material->transparency).getValue()));
    put(values, 4, material->ambientColor, 0);
    put(values, 8, material->specularColor,
        std::max(fraction(effectiveField(material->shininess).getValue()) * greatestExponent, 1.0F));
    put(values, 12, material->emissiveColor, 0);
    return values;
}

ComplexityValues complexityValues(const NxComplexity& complexity)
{
    constexpr float usual = 0.5F;
    return {effectiveField(complexity.type).getValue(), fraction(effectiveField(complexity.value).getValue(), usual),
        fraction(effectiveField(complexity.textureQuality).getValue(), usual)};
}

} // namespace meridane
