#include "plugins/nodes/MaterialLook.h"

#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <algorithm>
#include <cmath>

namespace nodes {

namespace {

// These numbers are those of the view.
constexpr double ambientLight = 0.2;
constexpr double sharpestExponent = 128;
constexpr double usualReflectance = 0.04;
constexpr double leastRoughness = 0.1;
constexpr double surroundings = 0.5;

double fraction(const NxSFFloat& field)
{
    const auto value = static_cast<double>(meridane::effectiveField(field).getValue());
    return value >= 0 ? std::min(value, 1.0) : 0; // 0 for NaN too
}

VbVec3d colorOf(const NxSFColor& field)
{
    const VbColor& color = meridane::effectiveField(field).getValue();
    VbVec3d parts;
    for (std::size_t i = 0; i < 3; ++i) {
        const auto part = static_cast<double>(color[i]);
        parts[i] = part >= 0 ? std::min(part, 1.0) : 0;
    }
    return parts;
}

double dot(const VbVec3d& left, const VbVec3d& right)
{
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

VbVec3d halfway(const VbVec3d& one, const VbVec3d& other)
{
    VbVec3d sum(one[0] + other[0], one[1] + other[1], one[2] + other[2]);
    const double size = std::max(std::sqrt(dot(sum, sum)), 1e-30);
    return {sum[0] / size, sum[1] / size, sum[2] / size};
}

} // namespace

MaterialLook::MaterialLook(const NxMaterial& material)
    : m_diffuse(colorOf(material.diffuseColor))
    , m_specular(colorOf(material.specularColor))
    , m_exponent(std::max(fraction(material.shininess) * sharpestExponent, 1.0))
    , m_roughness(std::max(fraction(material.roughness), leastRoughness))
    , m_opacity(1 - fraction(material.transparency))
{
    const double metalness = fraction(material.metalness);
    m_hasMicrofacets = metalness > 0 || fraction(material.roughness) < 1;
    const VbVec3d ambient = colorOf(material.ambientColor);
    const VbVec3d emissive = colorOf(material.emissiveColor);
    for (std::size_t i = 0; i < 3; ++i) {
        m_unlit[i] = emissive[i] + ambient[i] * ambientLight;
        m_reflectance[i] = usualReflectance + (m_diffuse[i] - usualReflectance) * metalness;
        if (m_hasMicrofacets)
            m_diffuse[i] *= 1 - metalness;
    }
    if (const double cutoff = fraction(material.alphaCutoff); cutoff > 0)
        m_opacity = m_opacity < cutoff ? 0 : 1;
}

VbColor MaterialLook::colorAt(const VbVec3d& normal, const VbVec3d& toEye, const VbVec3d& toLamp) const
{
    VbVec3d sum = m_unlit;
    if (const double slope = dot(normal, toLamp); slope > 0) {
        const VbVec3d mirrored = m_hasMicrofacets ? microfacets(normal, toEye, toLamp) : VbVec3d();
        const double highlight
            = m_hasMicrofacets ? 0 : std::pow(std::max(dot(normal, halfway(toLamp, toEye)), 0.0), m_exponent);
        for (std::size_t i = 0; i < 3; ++i)
            sum[i] += slope * (m_diffuse[i] + mirrored[i]) + m_specular[i] * highlight;
    }
    const auto part = [&](std::size_t i) { return static_cast<float>(std::min(sum[i], 1.0)); };
    return {part(0), part(1), part(2)};
}

// How much light a surface of tiny mirrors reflects to the eye, relative to a dull white one. The distribution of the
// mirrors is GGX (Walter, Marschner, Li and Torrance, "Microfacet Models for Refraction through Rough Surfaces", 2007),
// their shadows are Smith's (Heitz, "Understanding the Masking-Shadowing Function in Microfacet-Based BRDFs", 2014),
// and the Fresnel term is Schlick's ("An Inexpensive BRDF Model for Physically-based Rendering", 1994).
VbVec3d MaterialLook::microfacets(const VbVec3d& normal, const VbVec3d& toEye, const VbVec3d& toLamp) const
{
    const VbVec3d half = halfway(toLamp, toEye);
    const double slopeOfHalf = std::clamp(dot(normal, half), 0.0, 1.0);
    const double slopeOfLamp = std::clamp(dot(normal, toLamp), 1e-4, 1.0);
    const double slopeOfEye = std::clamp(dot(normal, toEye), 1e-4, 1.0);
    const double square = std::pow(m_roughness, 4);
    const double spread = slopeOfHalf * slopeOfHalf * (square - 1) + 1;
    const double distribution = square / (spread * spread);
    const double visibility = 0.5
        / (slopeOfLamp * std::sqrt(slopeOfEye * slopeOfEye * (1 - square) + square)
            + slopeOfEye * std::sqrt(slopeOfLamp * slopeOfLamp * (1 - square) + square));
    const double glancing = std::pow(1 - std::clamp(dot(toLamp, half), 0.0, 1.0), 5);
    VbVec3d reflected;
    for (std::size_t i = 0; i < 3; ++i) {
        const double share = m_reflectance[i] + (1 - m_reflectance[i]) * glancing;
        reflected[i] = share * distribution * visibility + m_reflectance[i] * surroundings;
    }
    return reflected;
}

} // namespace nodes
