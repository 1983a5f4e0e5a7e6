#pragma once

#include "meridane/base/values/VbColor.h"
#include "meridane/base/values/VbVec.h"

class NxMaterial;

namespace nodes {

/// What a material makes of light, as the view draws it on a mesh without textures.
class MaterialLook {
public:
    /// The values that apply now; the defaults of ignored fields.
    explicit MaterialLook(const NxMaterial& material);

    /// The colour of a surface that faces along `normal` in the light of one white lamp and the ambient light. All
    /// three directions have length 1 and lead away from the surface. Each part is from 0 to 1.
    [[nodiscard]] VbColor colorAt(const VbVec3d& normal, const VbVec3d& toEye, const VbVec3d& toLamp) const;
    /// From 0 for invisible to 1.
    [[nodiscard]] double opacity() const noexcept { return m_opacity; }

private:
    [[nodiscard]] VbVec3d microfacets(const VbVec3d& normal, const VbVec3d& toEye, const VbVec3d& toLamp) const;

    VbVec3d m_unlit; // what it shows without lamps
    VbVec3d m_diffuse;
    VbVec3d m_specular;
    VbVec3d m_reflectance; // with microfacets: what is mirrored of light from straight above
    double m_exponent = 1; // of the highlight
    double m_roughness = 1;
    double m_opacity = 1;
    bool m_hasMicrofacets = false;
};

} // namespace nodes
